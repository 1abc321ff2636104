// The help window on a small help file of its own, by keys and clicks, beside the windows that ask for it.

#include "desktop/Desk.h"
#include "desktop/help/HelpBrowser.h"
#include "desktop/help/QtHelpViewer.h"
#include "desktop/help/TopicTree.h"
#include "desktop/kit/Appearance.h"
#include "desktop/kit/FrontWindow.h"
#include "help/HTMLHelp.h"

#ifdef HELP_FILE

namespace {

class Help : public Desk {
 protected:
  Help() { Use(viewer_); }

  void Use(HelpViewer& viewer) {
    InstallServices({services_.clipboard, services_.messageBox, services_.fileDialog, windows_,
                     services_.printerDialog, services_.clock, services_.progress, viewer});
  }

  HelpWindow& Window() { return *viewer_.Window(); }
  HelpBrowser& Page() { return *Window().findChild<HelpBrowser*>(); }
  std::string Shown() { return Page().source().toString().toStdString(); }
  std::string ShownAfter(const char* keys) {
    Press(keys);
    return Shown();
  }
  QTabWidget& Tabs() { return *Window().findChild<QTabWidget*>(); }
  template <class Widget>
  Widget& InTab() {
    auto* const widget = dynamic_cast<Widget*>(Tabs().currentWidget());
    return widget != nullptr ? *widget : *Tabs().currentWidget()->findChild<Widget*>();
  }
  /// The topics of the tab that are shown, one behind the other.
  std::string Topics() {
    QStringList topics;
    for (QTreeWidgetItemIterator each(&InTab<TopicTree>(), QTreeWidgetItemIterator::NotHidden);
         *each != nullptr; ++each) {
      topics << (*each)->text(0);
    }
    return topics.join(QLatin1Char('|')).toStdString();
  }
  void ClickTopic(const char* title) {
    auto& tree = InTab<TopicTree>();
    const auto found = tree.findItems(QLatin1String(title), Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(found.size(), 1) << title;
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(found.first()).center());
  }
  void Open(const HasClick& command) {
    command.Click();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
  }
  void OpenPage(const char* page) {
    viewer_.ShowPage(page, "");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
  }

  QtHelpViewer viewer_{{QStringLiteral("/no such folder/pages.chm"), QStringLiteral(HELP_FILE)}};
};

TEST_F(Help, IsNotMadeBeforeItIsAskedFor) {
  viewer_.Close();
  EXPECT_EQ(viewer_.Window(), nullptr);
}

TEST_F(Help, ContentsLeadToPagesAndFollowThem) {
  Open(main_.mnuHelpContents);
  EXPECT_EQ(Topics(), "Start|Windows|Main window|Digits & decimals|Pipes");
  EXPECT_EQ(Shown(), "help:/start.html");
  ClickTopic("Digits & decimals");
  EXPECT_EQ(Shown(), "help:/frmDigits.html");
  EXPECT_EQ(ShownAfter("Down"), "help:/pipes.html");
  EXPECT_EQ(ShownAfter("Alt+Left"), "help:/frmDigits.html");
  EXPECT_EQ(InTab<TopicTree>().currentItem()->text(0), QStringLiteral("Digits & decimals"));
  EXPECT_EQ(ShownAfter("Alt+Left Alt+Right"), "help:/frmDigits.html");
  EXPECT_EQ(ShownAfter("Alt+Home"), "help:/start.html");
}

TEST_F(Help, TheIndexIsFiltered) {
  Open(main_.mnuHelpIndex);
  EXPECT_EQ(Topics(), "culvert|depth|critical|full pipe|slope");
  EXPECT_EQ(QApplication::focusWidget(), &InTab<QLineEdit>());
  for (const char* const typed : {"crit", "DEPTH"}) {
    InTab<QLineEdit>().clear();
    Keys(typed);
    EXPECT_EQ(Topics(), "depth|critical");
  }
  InTab<QLineEdit>().clear();
  Keys("ull");
  EXPECT_EQ(ShownAfter("Return"), "help:/pipes.html#full");
  EXPECT_GT(Page().verticalScrollBar()->value(), 0);
}

TEST_F(Help, SearchFindsThePagesThatHaveEveryWordAndMarksThem) {
  Open(main_.mnuHelpContents);
  Press("Alt+S");
  QTest::qWait(1);
  Keys("slope");
  EXPECT_EQ(Topics(), "Main window|Pipes|Start");
  Keys(" pipe");
  EXPECT_EQ(Topics(), "Pipes");
  EXPECT_EQ(ShownAfter("Return"), "help:/pipes.html");
  QStringList marked;
  for (const QTextEdit::ExtraSelection& mark : Page().extraSelections()) marked << mark.cursor.selectedText();
  EXPECT_EQ(marked.join(QLatin1Char(' ')).toStdString(), "slope Pipe pipe pipe");
  Keys(" submarine");
  EXPECT_EQ(Topics(), "");
  EXPECT_TRUE(InTab<TopicTree>().findChild<QLabel*>()->isVisible());
}

TEST_F(Help, FindsOnThePageForwardAndBackAndRoundItsEnd) {
  OpenPage("frmMain.html");
  Press("Ctrl+F");
  auto& line = *qobject_cast<QLineEdit*>(QApplication::focusWidget());
  Keys("Paragraph");
  for (const auto& [keys, found] : {std::pair{"Shift", "Paragraph 1"},
                                    {"Return", "Paragraph 2"},
                                    {"Shift+F3 Shift+F3", "Paragraph 8"},
                                    {"F3", "Paragraph 1"}}) {
    Press(keys);
    EXPECT_THAT(Page().textCursor().block().text().toStdString(), testing::StartsWith(found));
  }
  const auto ground = [&line] { return line.palette().color(QPalette::Base); };
  EXPECT_EQ(ground(), Window().palette().color(QPalette::Base));
  Keys("x");
  EXPECT_EQ(ground(), Appearance::OffendingGround(Window().palette()));
  Press("Esc");
  EXPECT_FALSE(line.isVisible());
  EXPECT_TRUE(Window().isVisible());
}

TEST_F(Help, StaysUsableBesideAModalWindowAndOwnsNoQuestionOfTheProgram) {
  InModal(main_.mnuOptionsDigits, [this](Form& form) {
    const QWidget& dialog = hands_.Window(form);
    Press("F1");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    EXPECT_EQ(Shown(), "help:/frmDigits.html#optSigDigs_3");
    EXPECT_EQ(FrontWindow(), &dialog);
    ClickTopic("Pipes");
    EXPECT_EQ(Shown(), "help:/pipes.html");
    hands_.Window(form);
    Press("Esc");
    EXPECT_FALSE(form.IsLoaded());
  });
  EXPECT_TRUE(Window().isVisible());
  hands_.Focus(main_.tbSlope);
  hands_.Window(main_);
  EXPECT_EQ(ShownAfter("F1"), "help:/frmMain.html#tbSlope");
  Open(main_.mnuHelpContents);
  EXPECT_EQ(FrontWindow(), windows_.WindowOf(main_));
  InModal(main_.mnuOptionsDigits, [this](Form& form) {
    EXPECT_EQ(windows_.WindowOf(form)->parentWidget(), windows_.WindowOf(main_));
  });
  hands_.Close(main_);
  EXPECT_FALSE(Window().isVisible());
}

TEST_F(Help, KeepsPlaceAndTextSizeWhenOpenedAgain) {
  OpenPage("pipes.html");
  const qreal usual = Page().font().pointSizeF();
  Press("Ctrl++ Ctrl+=");
  EXPECT_EQ(Page().font().pointSizeF(), usual + 2);
  const QRect place = Window().geometry().translated(30, 20);
  Window().setGeometry(place);
  Press("Esc");
  EXPECT_FALSE(Window().isVisible());
  Open(main_.mnuHelpContents);
  EXPECT_EQ(Shown(), "help:/pipes.html");
  EXPECT_EQ(Page().font().pointSizeF(), usual + 2);
  EXPECT_EQ(Window().geometry(), place);
  // The wheel changes the size too.
  QWheelEvent wheel({9, 9}, Page().viewport()->mapToGlobal(QPointF(9, 9)), {}, {0, 120}, {},
                    Qt::ControlModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(Page().viewport(), &wheel);
  EXPECT_GT(Page().font().pointSizeF(), usual + 2);
  Press("Ctrl+0");
  EXPECT_EQ(Page().font().pointSizeF(), usual);
}

TEST_F(Help, LinksLeadToPlacesToAWordForWhatIsGoneAndOut) {
  OpenPage("frmNobody.html");
  EXPECT_EQ(Shown(), "help:/start.html");
  EXPECT_EQ(ShownAfter("Tab Return"), "help:/frmMain.html#tbSlope");
  EXPECT_GT(Page().verticalScrollBar()->value(), 0);
  Press("Alt+Left");
  QTextBrowser elsewhere;
  QDesktopServices::setUrlHandler(QStringLiteral("https"), &elsewhere, "setSource");
  Page().setSource(QUrl(QStringLiteral("https://www.example.org/")));
  QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
  EXPECT_EQ(elsewhere.source().toString(), QStringLiteral("https://www.example.org/"));
  EXPECT_EQ(Shown(), "help:/start.html");
  Page().setSource(QUrl(QStringLiteral("gone.html")));
  EXPECT_THAT(Page().toPlainText().toStdString(), testing::HasSubstr("no page"));
}

TEST_F(Help, PicturesFitAndWordsAreReadOnLightAndDark) {
  OpenPage("start.html");
  for (const int width : {1000, 640}) {
    Window().resize(width, 500);
    QTest::qWait(1);
    EXPECT_EQ(Page().horizontalScrollBar()->maximum(), 0) << width;
  }
  const QPalette usual = QApplication::palette();
  for (const bool dark : {false, true}) {
    QApplication::setPalette(dark ? QPalette(QColor(40, 44, 48)) : usual);
    QTest::qWait(1);
    const QTextCursor link = Page().document()->find(QStringLiteral("slope"));
    const int difference = link.charFormat().foreground().color().lightness() -
                           Page().palette().color(QPalette::Base).lightness();
    EXPECT_GT(dark ? difference : -difference, 80);
  }
  QApplication::setPalette(usual);
}

TEST_F(Help, AMissingFileIsReportedOnce) {
  QtHelpViewer none({QStringLiteral("/no such folder/pages.chm")});
  Use(none);
  main_.mnuHelpContents.Click();
  EXPECT_EQ(none.Window(), nullptr);
  EXPECT_EQ(services_.messageBox.Boxes.size(), 1U);
}

TEST_F(Help, AFileThatIsCutOffOrChangedAnywhereIsNotRead) {
  QFile file(QStringLiteral(HELP_FILE));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray whole = file.readAll();
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("pages.chm"));
  const auto opens = [&path](const QByteArray& bytes) {
    QFile copy(path);
    EXPECT_TRUE(copy.open(QIODevice::WriteOnly));
    copy.write(bytes);
    copy.close();
    return HelpFile::Open(path) != nullptr;
  };
  EXPECT_TRUE(opens(whole));
  for (const qsizetype length :
       {qsizetype{0}, qsizetype{10}, qsizetype{64}, whole.size() / 2, whole.size() - 64, whole.size() - 1}) {
    EXPECT_FALSE(opens(whole.left(length))) << length;
  }
  for (qsizetype at = 0; at < whole.size(); at += 997) {
    QByteArray changed = whole;
    changed[at] = static_cast<char>(changed[at] ^ 0x10);
    EXPECT_FALSE(opens(changed)) << at;
  }
  // Whole, but nothing that the decoder knows.
  EXPECT_FALSE(opens("e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"));
}

}  // namespace

#endif

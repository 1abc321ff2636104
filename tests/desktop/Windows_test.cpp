// Every window shows all of its form and nothing else, can be worked by keyboard and read by a screen reader.
#include <algorithm>
#include <map>

#include "app/Declarations.h"
#include "desktop/Desk.h"
#include "desktop/chart/ChartWidget.h"
#include "desktop/help/FindBar.h"
#include "desktop/kit/ScrollPage.h"
#include "desktop/kit/Text.h"
#include "desktop/section/PointGrid.h"
#include "help/frmAbout.h"
#include "section/frmIrreg.h"

namespace {

class Windows : public Desk {
 protected:
  /// The check in each window of the program.
  void InEveryWindow(const std::function<void(Form&)>& check) {
    check(main_);
    InModal(main_.mnuOptionsDigits, check);
    InModal(main_.cmdMannParams, check);
    InModal(main_.mnuHelpAbout, check);
    EnterTrapezoid();
    hands_.Focus(main_.tbProjName);
    InModal(main_.mnuSolveSection, check);
    InModal(main_.mnuSolveFind, check);
    hands_.Click(main_.mnuSolveWorking);
    check(Working());
    Working().Unload();
    for (MenuItem* const rating : {&main_.mnuSolveGraph, &main_.mnuSolveTable}) {
      InModal(*rating, [&](Form& settings) {
        check(settings);
        inModal_ = check;
        Press("Return");
      });
    }
    hands_.Click(main_.mnuOptionsIrreg);
    InModal(main_.cmdIrreg, check);
    InModal(main_.cmdIrreg, [&](Form& editor) {
      services_.fileDialog.Choices = {SURVEY};
      InModal(dynamic_cast<frmIrreg&>(editor).mnuFileImport, check);
    });
  }

  Form& Working() { return *windows_.FormsBeside().back(); }
};

/// Something with which a person could do or change something, but what works on the view alone.
bool IsHandle(const QObject& object) {
  if (const auto* const action = qobject_cast<const QAction*>(&object)) {
    const auto* const bar = qobject_cast<QToolBar*>(action->parent());
    const bool ofQt = bar != nullptr && bar->toggleViewAction() == action;
    return !action->isSeparator() && action->menu() == nullptr && !ofQt &&
           qobject_cast<QLineEdit*>(action->parent()) == nullptr &&
           dynamic_cast<ChartWidget*>(action->parent()) == nullptr;
  }
  if (dynamic_cast<FindBar*>(object.parent()) != nullptr) return false;
  const auto is = [&object](const char* kind) { return object.inherits(kind); };
  return is("QLineEdit") || is("QListWidget") || is("QComboBox") || is("QTableView") ||
         (is("QAbstractButton") && !is("QToolButton") && !is("QTableCornerButton"));
}

TEST_F(Windows, EveryControlHasItsWidgetWithANameAndTheReverse) {
  InEveryWindow([this](Form& form) {
    SCOPED_TRACE(form.Name());
    const QWidget& window = hands_.Window(form);
    for (Control* const control : form.Controls()) {
      const auto found = window.findChildren<QObject*>(QString::fromStdString(control->Name()));
      ASSERT_EQ(found.size(), 1) << control->Name();
      if (dynamic_cast<FocusControl*>(control) == nullptr) continue;
      const auto* const reader = QAccessible::queryAccessibleInterface(found.first());
      EXPECT_FALSE(reader->text(QAccessible::Name).isEmpty()) << control->Name();
    }
    for (const QObject* const each : window.findChildren<QObject*>()) {
      const std::string name = each->objectName().toStdString();
      EXPECT_TRUE(!IsHandle(*each) || form.Find(name) != nullptr)
          << each->metaObject()->className() << ' ' << name;
    }
  });
}

TEST_F(Windows, AScreenReaderReadsCaptionUnitAndMistake) {
  EXPECT_EQ(main_.ActiveControl(), &main_.tbFlow);
  EXPECT_EQ(Focused(), "tbFlow");
  const auto spoken = [this](const TextBox& box) {
    const auto* const reader = QAccessible::queryAccessibleInterface(&Edit(box));
    return FromQt(reader->text(QAccessible::Name) + u'|' + reader->text(QAccessible::Description));
  };
  EnterTrapezoid();
  std::string all;
  for (const Control* const control : main_.Controls()) {
    if (const auto* const box = dynamic_cast<const TextBox*>(control)) all += spoken(*box) + "; ";
  }
  EXPECT_EQ(
      all,
      "Project|; Flow|cfs; Depth|ft; Slope|ft/ft; Manning's n|; Base Width|ft; Left Side Slope|:1; "
      "Right Side Slope|:1; Diameter|in; Velocity|fps; Velocity Head|ft; Flow Area|sf; "
      "Wetted Perimeter|ft; Hydraulic Radius|ft; Top Width|ft; Froude Number|Subcritical: the water level "
      "is governed from downstream; Critical Depth|ft; "
      "Critical Slope|ft; ");
  hands_.Click(main_.mnuOptionsUnitsMetric);
  EXPECT_EQ(spoken(main_.tbArea), "Flow Area|m\u00B2");
  hands_.Type(main_.tbSlope, "2");
  EXPECT_EQ(spoken(main_.tbSlope), "Slope|m/m, Slope must be greater than 0 and less than 1");
}

/// The mnemonics of the texts, joined; none may occur twice.
QString UniqueMnemonics(const QStringList& texts) {
  QString mnemonics;
  for (QString text : texts) {
    text.remove(QLatin1String("&&"));
    const qsizetype at = text.indexOf(QLatin1Char('&'));
    if (at >= 0) mnemonics += text[at + 1].toLower();
  }
  std::sort(mnemonics.begin(), mnemonics.end());
  EXPECT_EQ(std::adjacent_find(mnemonics.begin(), mnemonics.end()), mnemonics.end())
      << mnemonics.toStdString();
  return mnemonics;
}

QStringList TextsOf(const QList<QAction*>& actions) {
  QStringList texts;
  for (const QAction* const action : actions) {
    if (!action->isSeparator()) texts << action->text();
  }
  return texts;
}

/// The mnemonics that work in the window as it is.
QString Mnemonics(const QWidget& window) {
  QStringList texts;
  if (const auto* const bar = window.findChild<QMenuBar*>()) texts = TextsOf(bar->actions());
  for (const QWidget* const each : window.findChildren<QWidget*>()) {
    const auto* const label = qobject_cast<const QLabel*>(each);
    if (!each->isVisible() || each->inherits("QToolButton") ||
        (label != nullptr && label->buddy() == nullptr))
      continue;
    texts << each->property("text").toString() << each->property("title").toString();
  }
  return UniqueMnemonics(texts);
}

TEST_F(Windows, MnemonicsAreUnique) {
  InEveryWindow([this](Form& form) {
    SCOPED_TRACE(form.Name());
    const QWidget& window = hands_.Window(form);
    Mnemonics(window);
    for (const QMenu* const menu : window.findChildren<QMenu*>()) {
      const QStringList items = TextsOf(menu->actions());
      EXPECT_EQ(UniqueMnemonics(items).size(), items.size()) << items.join(u' ').toStdString();
    }
  });
  const QWidget& window = hands_.Window(main_);
  const auto titles = window.findChild<QMenuBar*>()->actions().size();
  InEveryType([&] { EXPECT_GE(Mnemonics(window).size(), titles + 4); });
}

TEST_F(Windows, TabGoesInReadingOrder) {
  const std::map<std::string, std::string> orders{
      {"frmMain",
       "tbProjName tbFlow tbDepth tbSlope tbMann cmdMannParams tbBaseWidth tbSSL tbSSR "
       "tbVelocity tbVelHead tbArea tbWP tbHRad tbTopW tbFroude tbCritD tbCritS"},
      {"frmDigits", "optSigDigs_3 optEngDigs_3 cmdOK cmdCancel"},
      {"frmFind", "cbxFind tbFlow tbDepth tbFound cmdOK cmdCancel"},
      {"frmMannParam", "lstMannParam cmdOK cmdCancel"},
      {"frmAbout", "cmdOK lblPurpose lblLicence lblLibraries"},
      {"frmSection", "MSChart1"},
      {"frmGraphSettings", "cbxVary tbMin tbMax cbxY cmdOK cmdCancel"},
      {"frmGraph", "MSChart1 cbxY cbxVary tbMin tbMax cbxFamily"},
      {"frmTableSettings", "cbxVary tbMin tbMax tbIncrement cmdLastUsed cmdOK cmdCancel"},
      {"frmTable", "MSFlexGrid1"},
      {"frmWorking", "pgWorking"},
      {"frmIrreg", "MSFlexGrid1 cmdCopy cmdPaste cmdIns cmdDel cmdMannParams MSChart1 cmdOK cmdCancel"},
      {"frmImport",
       "MSFlexGrid1 cbxSeparator cbxSign cbxStation cbxElevation cbxRoughness cbxUnit MSChart1 chkChange_0 "
       "chkChange_3 cmdOK cmdCancel"}};
  hands_.Click(main_.mnuOptionsTrap);
  hands_.Focus(main_.tbProjName);
  InEveryWindow([&](Form& form) {
    const QWidget& window = hands_.Window(form);
    const QWidget* const first = window.focusWidget();
    QStringList order;
    int steps = 0;
    do {
      const QString name = QApplication::focusWidget()->objectName();
      if (order.isEmpty() || order.last() != name) order << name;  // a text may have several links
      // Tab alone goes through the cells of the points.
      const bool points = dynamic_cast<PointGrid*>(QApplication::focusWidget()) != nullptr;
      Press(points ? "Ctrl+Tab" : "Tab");
    } while (QApplication::focusWidget() != first && ++steps < 30);
    EXPECT_EQ(order.join(u' ').toStdString(), orders.at(form.Name())) << form.Name();
  });
}

TEST_F(Windows, NoDialogIsLargerThanTheScreenAndNothingInItIsCutOff) {
  for (const double larger : {1.0, 2.5}) {
    const LargerText text(larger);
    InEveryWindow([&](Form& form) {
      if (&form == &main_) return;
      SCOPED_TRACE(form.Name());
      const QWidget& window = hands_.Window(form);
      const QSize screen = window.screen()->availableSize();
      EXPECT_LE(window.width(), screen.width()) << larger;
      EXPECT_LE(window.height(), screen.height()) << larger;
      EXPECT_EQ(CutOff(window), "") << larger;
      const auto* const page = dynamic_cast<ScrollPage*>(window.findChild<QScrollArea*>());
      const bool roomy = window.width() < screen.width() * 3 / 4 && window.height() < screen.height() * 3 / 4;
      if (page == nullptr || !roomy) return;
      EXPECT_FALSE(page->horizontalScrollBar()->isVisible()) << larger;
      EXPECT_FALSE(page->verticalScrollBar()->isVisible()) << larger;
    });
  }
}

TEST_F(Windows, KeysWorkTheDialogs) {
  for (const char* const keys : {"Right Return", "Right Esc"}) {
    InModal(main_.mnuOptionsDigits, [this, keys](Form& form) {
      hands_.Window(form);
      Press(keys);
      EXPECT_FALSE(form.IsLoaded());
    });
    EXPECT_EQ(Declarations::SigDigs, 4) << keys;
  }
  InModal(main_.cmdMannParams, [this](Form& form) {
    hands_.Window(form);
    Press("Down Return");
    EXPECT_FALSE(form.IsLoaded());
  });
  EXPECT_EQ(main_.tbMann.Text.Get(), "0.013");
  int opened = 0;
  inModal_ = [&opened](Form&) { ++opened; };
  hands_.Focus(main_.cmdMannParams);
  Press("Return");
  EXPECT_EQ(opened, 1);
  services_.fileDialog.Choices = {std::nullopt};
  Press("Ctrl+Shift+S");
  EXPECT_EQ(services_.fileDialog.Requests.size(), 1U);
}

TEST_F(Windows, EscapeClosesAllButTheFirst) {
  InEveryWindow([this](Form& form) {
    if (&form == &main_ || form.Name().ends_with("Settings"))
      return;  // behind the settings is another window
    hands_.Window(form);
    Press("Esc");
    EXPECT_FALSE(form.IsLoaded()) << form.Name();
  });
}

TEST_F(Windows, KeysReadTheWorkingFromTheNotesOn) {
  EnterPipe("36", "2.9");
  Press("F8");
  const QTextBrowser& page = hands_.Of<QTextBrowser>(*Working().Find("pgWorking"));
  const auto line = [&page] { return page.textCursor().block().text().toStdString(); };
  EXPECT_EQ(line(), "Notes");
  Press("Down");
  EXPECT_THAT(line(), testing::StartsWith("Two depths carry this flow: 2.900 ft, in the box"));
  hands_.Window(main_);
  hands_.Type(main_.tbDepth, "2.95");
  EXPECT_THAT(line(), testing::StartsWith("Two depths carry this flow: 2.950 ft, in the box"));
  hands_.Window(Working());
  Press("Ctrl+F");
  Keys("Reynolds");
  EXPECT_THAT(line(), testing::StartsWith("Reynolds number Re = V R"));
  Press("Esc");
  EXPECT_TRUE(Working().IsLoaded());
  Press("F8");
  EXPECT_EQ(line(), "Notes");
  Press("Esc");
  EXPECT_FALSE(Working().IsLoaded());
}

TEST_F(Windows, TheTitleBarBoxAsksAndMayBeRefused) {
  QWidget& window = hands_.Window(main_);
  Keys("4");
  EXPECT_TRUE(window.isWindowModified());
  services_.messageBox.Answers = {BoxAnswer::Cancel};
  hands_.Close(main_);
  EXPECT_TRUE(window.isVisible());
  services_.messageBox.Answers = {BoxAnswer::No};
  hands_.Close(main_);
  EXPECT_FALSE(window.isVisible());
  EXPECT_FALSE(main_.IsLoaded());
}

}  // namespace

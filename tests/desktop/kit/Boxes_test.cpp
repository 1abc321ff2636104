// Text boxes: editing stays what a person knows, and colours distinguish inputs, answers and mistakes.

#include "desktop/Desk.h"
#include "desktop/kit/Appearance.h"
#include "desktop/kit/Text.h"
#include "engine/NumberText.h"

namespace {

class Boxes : public Desk {
 protected:
  /// What the sign in the status line says to a screen reader.
  std::string Sign() const {
    return FromQt(hands_.Of<QWidget>(main_.lblStatus).parentWidget()->findChild<QLabel*>()->accessibleName());
  }
};

TEST_F(Boxes, LeavingABoxTidiesItsNumber) {
  hands_.Focus(main_.tbSlope);
  Keys(".5");
  EXPECT_EQ(main_.tbSlope.Text.Get(), ".5");
  Press("Tab");
  EXPECT_EQ(main_.tbSlope.Text.Get(), "0.5");
  // Back again the whole text is selected: typing replaces it, and both steps can be undone.
  Press("Shift+Backtab");
  EXPECT_EQ(Edit(main_.tbSlope).selectedText(), QStringLiteral("0.5"));
  Keys("7");
  EXPECT_EQ(main_.tbSlope.Text.Get(), "7");
  Press("Ctrl+Z");
  EXPECT_EQ(main_.tbSlope.Text.Get(), "0.5");
  Press("Ctrl+Z");
  EXPECT_EQ(main_.tbSlope.Text.Get(), ".5");
  Press("Ctrl+Shift+Z");
  EXPECT_EQ(main_.tbSlope.Text.Get(), "0.5");
}

TEST_F(Boxes, WhatTheEditMenuDoesCanBeUndone) {
  hands_.Focus(main_.tbProjName);
  Keys("culvert 12");
  hands_.Select(main_.tbProjName, {0, 7});
  hands_.Click(main_.mnuEditCut);
  EXPECT_EQ(Edit(main_.tbProjName).cursorPosition(), 0);
  hands_.Click(main_.mnuEditPaste);
  EXPECT_EQ(main_.tbProjName.Text.Get(), "culvert 12");
  EXPECT_EQ(Edit(main_.tbProjName).cursorPosition(), 7);
  Press("Ctrl+Z");
  EXPECT_EQ(main_.tbProjName.Text.Get(), " 12");
  Press("Ctrl+Z");
  EXPECT_EQ(main_.tbProjName.Text.Get(), "culvert 12");
}

TEST_F(Boxes, UndoTakesBackWhatWasTypedInEveryBoxBeforeACommand) {
  hands_.Click(main_.mnuOptionsTrap);
  hands_.Focus(main_.tbFlow);
  Keys("35 L/s");
  hands_.Focus(main_.tbSlope);
  Keys(".004");
  hands_.Focus(main_.tbVelocity);
  const auto undone = [&](const char* flow, const char* slope) {
    Press("Ctrl+Z");
    EXPECT_EQ(main_.tbFlow.Text.Get(), flow);
    EXPECT_EQ(main_.tbSlope.Text.Get(), slope);
    EXPECT_EQ(main_.lblChanType.Caption.Get(), "Trapezoidal Channel");
  };
  undone("1.236013", ".004");
  undone("1.236013", "");
  undone("35 L/s", "");
  undone("", "");
  Press("Ctrl+Z");
  EXPECT_EQ(main_.lblChanType.Caption.Get(), "Circular Channel");
}

TEST_F(Boxes, TheMenuBarLeavesTheSelectionAsItIs) {
  hands_.Focus(main_.tbFlow);
  Keys("123");
  main_.tbFlow.SelectAll();
  hands_.Window(main_).findChild<QMenuBar*>()->setFocus(Qt::MenuBarFocusReason);
  EXPECT_EQ(main_.tbFlow.SelectedText(), "123");
  Edit(main_.tbFlow).setFocus(Qt::MenuBarFocusReason);
  EXPECT_EQ(Edit(main_.tbFlow).selectedText(), QStringLiteral("123"));
}

TEST_F(Boxes, OnlyTheFirstLineOfACopiedTextIsPasted) {
  BoxEdit& flow = Edit(main_.tbFlow);
  QClipboard& clipboard = *QApplication::clipboard();
  const auto paste = [&](const std::function<void()>& act) {
    hands_.Type(main_.tbFlow, "");
    act();
    return main_.tbFlow.Text.Get();
  };
  for (const char* const copied : {"400\r\n", "\n400\n500", "400\r"}) {
    services_.clipboard.SetText(copied);
    clipboard.setText(QString::fromLatin1(copied));
    EXPECT_EQ(paste([] { Press("Ctrl+V"); }), "400");
    EXPECT_EQ(paste([this] { hands_.Click(main_.mnuEditPaste); }), "400");
    EXPECT_EQ(paste([&] {
                QContextMenuEvent asked(QContextMenuEvent::Mouse, {}, {});
                QApplication::sendEvent(&flow, &asked);
                QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_P);
              }),
              "400");
    EXPECT_EQ(paste([&] {
                QMimeData dragged;
                dragged.setText(QString::fromLatin1(copied));
                QDragEnterEvent enters({}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
                QApplication::sendEvent(&flow, &enters);
                QDropEvent drop({}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
                QApplication::sendEvent(&flow, &drop);
              }),
              "400");
  }
}

TEST_F(Boxes, UndoEndsWhereAnotherProblemBegins) {
  hands_.Focus(main_.tbProjName);
  Keys("old");
  hands_.Click(main_.mnuOptionsTrap);
  MenuItem* const switches[] = {&main_.mnuOptionsUnitsMetric, &main_.mnuOptionsCircular,
                                &main_.mnuSolveForFlow, &main_.mnuFileNew};
  for (MenuItem* const item : switches) {
    SCOPED_TRACE(item->Caption.Get());
    hands_.Click(main_.mnuSolveForDepth);
    Enter("tbFlow 400, tbSlope 0.5");
    services_.messageBox.Answers = {BoxAnswer::No};
    hands_.Click(*item);
    for (const TextBox* const box : {&main_.tbFlow, &main_.tbSlope, &main_.tbProjName}) {
      const std::string then = box->Text;
      Edit(*box).undo();
      EXPECT_EQ(box->Text.Get(), then);
    }
  }
}

TEST_F(Boxes, ASwitchLeavesTheKeyboardWhereItCanType) {
  const struct {
    TextBox& From;
    MenuItem& Switch;
    const char* Then;
  } cases[] = {
      {main_.tbFlow, main_.mnuSolveForFlow, "tbDepth"},
      {main_.tbDepth, main_.mnuSolveForDepth, "tbSlope"},
      {main_.tbBaseWidth, main_.mnuOptionsTriangular, "tbSSL"},
      {main_.tbSSR, main_.mnuOptionsCircular, "tbFlow"},
      {main_.tbVelocity, main_.mnuSolveForFlow, "tbVelocity"},
      {main_.tbSlope, main_.mnuOptionsIrreg, "tbSlope"},
      {main_.tbSlope, main_.mnuFileNew, "tbDepth"},
  };
  hands_.Click(main_.mnuOptionsTrap);
  for (const auto& each : cases) {
    if (&each.Switch == &main_.mnuOptionsCircular) hands_.Click(main_.mnuOptionsTrap);
    hands_.Focus(each.From);
    services_.messageBox.Answers = {BoxAnswer::No};
    hands_.Click(each.Switch);
    EXPECT_EQ(Focused(), each.Then) << each.Switch.Caption.Get();
    EXPECT_EQ(main_.ActiveControl()->Name(), each.Then);
  }
  ProjectFile::Project project = main_.CurrentProject();
  project.SolveForFlow = false;
  main_.RecoverProject(project, "");
  EXPECT_EQ(Focused(), "tbSlope") << "the depth is an answer now";
}

TEST_F(Boxes, ADoubleClickSelectsTheWholeNumber) {
  const std::pair<const char*, const char*> cases[] = {
      {"-1,234.5", "-1,234.5"}, {"1.5e-3", "1.5e-3"}, {"12 m", "12"}};
  for (const auto& [text, selected] : cases) {
    hands_.Type(main_.tbProjName, text);
    QTest::mouseDClick(&Edit(main_.tbProjName), Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(main_.tbProjName.SelectedText(), selected);
  }
}

TEST_F(Boxes, AnAnswerCanBeCopiedButNotEdited) {
  EnterTrapezoid();
  hands_.Focus(main_.tbVelocity);
  Press("Ctrl+C");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("4.45"));
  QApplication::clipboard()->setText(QString());
  Press("Ctrl+X");  // as the menu's Cut, which copies
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("4.45"));
  services_.clipboard.SetText("kept");
  Press("Home Ctrl+X Ctrl+C");  // with nothing selected
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("4.45"));
  EXPECT_EQ(services_.clipboard.Text(), "kept");
  Press("Del 9");
  EXPECT_EQ(Edit(main_.tbVelocity).text(), QStringLiteral("4.45"));
}

TEST_F(Boxes, AnAnswersOwnMenuCopiesIt) {
  EnterTrapezoid();
  hands_.Focus(main_.tbVelocity);
  const auto choose = [this](Qt::Key letter) {
    QContextMenuEvent asked(QContextMenuEvent::Mouse, {}, {});
    QApplication::sendEvent(&Edit(main_.tbVelocity), &asked);
    QTest::keyClick(QApplication::activePopupWidget(), letter);
  };
  choose(Qt::Key_C);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("4.45"));
  choose(Qt::Key_W);
  EXPECT_EQ(services_.clipboard.Text(), "4.45 fps");
  choose(Qt::Key_F);
  EXPECT_EQ(LeadingNumber(services_.clipboard.Text()), ChannelState.Velocity.Number());
}

TEST_F(Boxes, ClickingIntoABoxSelectsItsNumber) {
  EnterTrapezoid();
  BoxEdit& flow = Edit(main_.tbFlow);
  QTest::mouseClick(&flow, Qt::LeftButton);
  EXPECT_EQ(flow.selectedText(), QStringLiteral("400"));
  EXPECT_EQ(main_.tbFlow.Selection.Get(), (TextRange{0, 3}));
  QTest::mouseClick(&flow, Qt::LeftButton);
  EXPECT_EQ(flow.selectedText(), QString());
}

TEST_F(Boxes, PositionsAreCountedInCharacters) {
  hands_.Focus(main_.tbProjName);
  hands_.Type(main_.tbProjName, "a\U0001F30Ab");  // the middle one takes two units in Qt, four bytes here
  EXPECT_EQ(main_.tbProjName.Selection.Get(), (TextRange{3, 0}));
  main_.tbProjName.Selection = {1, 1};
  EXPECT_EQ(FromQt(Edit(main_.tbProjName).selectedText()), "\U0001F30A");
  main_.tbProjName.ReplaceSelection("-");
  EXPECT_EQ(Edit(main_.tbProjName).text(), QStringLiteral("a-b"));
}

TEST_F(Boxes, AHugePasteIsTakenWholeOrRefused) {
  EnterTrapezoid();
  hands_.Focus(main_.tbFlow);
  const auto paste = [](int length) {
    QApplication::clipboard()->setText(QString(length, QLatin1Char('9')));
    Press("Ctrl+V");
  };
  for (const int length : {TextBox::LongestText + 1, 4'000'001}) {
    paste(length);
    EXPECT_EQ(main_.tbFlow.Text.Get(), "400");
    EXPECT_EQ(main_.lblStatus.Caption.Get(),
              "The text on the clipboard is too long for a box. Depth solved: subcritical");
    EXPECT_EQ(Sign(), "Failed");
  }
  paste(TextBox::LongestText);
  EXPECT_EQ(main_.tbFlow.Text.Get().size(), 100'000U);
  EXPECT_EQ(main_.tbDepth.Text.Get(), "");
  Press("Ctrl+Z");
  EXPECT_EQ(main_.tbDepth.Text.Get(), "3.361");
}

TEST_F(Boxes, TheSignFollowsTheProblemThoughTheReasonStays) {
  hands_.Focus(main_.tbFlow);
  for (const auto& [key, sign] :
       {std::pair("0", "Cannot be used"), {"Del", "To be filled in"}, {"0", "Cannot be used"}}) {
    Press(key);
    EXPECT_EQ(Sign(), sign);
    EXPECT_EQ(main_.lblStatus.Caption.Get(), "Flow must be greater than 0");
    main_.tbFlow.SelectAll();
  }
  EnterTrapezoid();
  EXPECT_EQ(Sign(), "Solved");
}

TEST_F(Boxes, ColoursDistinguishInputsResultsAndMistakes) {
  const QPalette usual = QApplication::palette();
  const auto ground = [this](const TextBox& box) { return Edit(box).palette().color(QPalette::Base); };
  hands_.Type(main_.tbSlope, "2");
  for (const QPalette& colours : {QPalette(QColor(40, 44, 48)), usual}) {
    QApplication::setPalette(colours);
    QTest::qWait(1);
    hands_.Click(main_.mnuSolveForFlow);
    EXPECT_EQ(ground(main_.tbFlow), Appearance::ResultGround(colours));
    EXPECT_EQ(ground(main_.tbDepth), colours.color(QPalette::Base));
    hands_.Click(main_.mnuSolveForDepth);
    EXPECT_EQ(ground(main_.tbFlow), colours.color(QPalette::Base));
    EXPECT_EQ(ground(main_.tbDepth), Appearance::ResultGround(colours));
    EXPECT_EQ(ground(main_.tbSlope), Appearance::OffendingGround(colours));
  }
  hands_.Type(main_.tbSlope, "0.2");
  EXPECT_EQ(ground(main_.tbSlope), usual.color(QPalette::Base));
}

}  // namespace

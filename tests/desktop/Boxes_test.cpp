// Text boxes: editing stays what a person knows, and colours tell inputs, answers and what cannot be used.
#include <QClipboard>

#include "desktop/Desk.h"
#include "desktop/kit/Appearance.h"
#include "desktop/kit/Text.h"

namespace {

using Boxes = Desk;

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

TEST_F(Boxes, AnAnswerCanBeCopiedButNotEdited) {
  EnterTrapezoid();
  hands_.Focus(main_.tbVelocity);
  Press("Ctrl+C");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("4.45"));
  Press("Ctrl+X");  // the menu's Cut, which copies
  EXPECT_EQ(services_.clipboard.Text(), "4.45");
  Press("Del 9");
  EXPECT_EQ(Edit(main_.tbVelocity).text(), QStringLiteral("4.45"));
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

TEST_F(Boxes, AHugePasteIsTakenWholeAndGivesNoResult) {
  EnterTrapezoid();
  hands_.Focus(main_.tbFlow);
  QApplication::clipboard()->setText(QString(1'000'000, QLatin1Char('9')));
  Press("Ctrl+V");
  EXPECT_EQ(main_.tbFlow.Text.Get().size(), 1'000'000U);
  EXPECT_EQ(main_.tbDepth.Text.Get(), "");
  Press("Ctrl+Z");
  EXPECT_EQ(main_.tbDepth.Text.Get(), "3.361");
}

TEST_F(Boxes, ColoursTellInputsResultsAndOffencesAndFollowThePalette) {
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

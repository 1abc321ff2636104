// Text boxes: what is typed reaches the calculator and its answers the screen; editing stays what a person
// knows.
#include <QClipboard>

#include "desktop/Appearance.h"
#include "desktop/Desk.h"
#include "desktop/Text.h"

namespace {

using Boxes = Desk;

TEST_F(Boxes, ResultsFollowTheKeys) {
  EnterTrapezoid();
  EXPECT_EQ(Edit(main_.tbDepth).text(), QStringLiteral("3.361"));
  EXPECT_EQ(Edit(main_.tbVelocity).text(), QStringLiteral("4.45"));
  EXPECT_EQ(Edit(main_.tbCritD).text(), QStringLiteral("2.148"));
  Key(Qt::Key_Backspace);  // zR
  EXPECT_EQ(Edit(main_.tbDepth).text(), QString());
}

TEST_F(Boxes, LeavingABoxTidiesItsNumber) {
  hands_.Focus(main_.tbSlope);
  Keys(".5");
  EXPECT_EQ(Edit(main_.tbSlope).text(), QStringLiteral(".5"));
  Key(Qt::Key_Tab);
  EXPECT_EQ(Edit(main_.tbSlope).text(), QStringLiteral("0.5"));
  // Back again the whole text is selected: typing replaces it, and both steps can be undone.
  Key(Qt::Key_Backtab);
  EXPECT_EQ(Edit(main_.tbSlope).selectedText(), QStringLiteral("0.5"));
  Keys("7");
  EXPECT_EQ(main_.tbSlope.Text.Get(), "7");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(main_.tbSlope.Text.Get(), "0.5");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(main_.tbSlope.Text.Get(), ".5");
  Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(main_.tbSlope.Text.Get(), "0.5");
}

TEST_F(Boxes, TheEditMenuEditsSoThatItCanBeUndone) {
  hands_.Focus(main_.tbProjName);
  Keys("culvert 12");
  hands_.Select(main_.tbProjName, {0, 7});
  hands_.Click(main_.mnuEditCut);
  EXPECT_EQ(services_.clipboard.Text(), "culvert");
  EXPECT_EQ(Edit(main_.tbProjName).text(), QStringLiteral(" 12"));
  EXPECT_EQ(Edit(main_.tbProjName).cursorPosition(), 0);
  hands_.Click(main_.mnuEditPaste);
  EXPECT_EQ(Edit(main_.tbProjName).text(), QStringLiteral("culvert 12"));
  EXPECT_EQ(Edit(main_.tbProjName).cursorPosition(), 7);
  Key(Qt::Key_Z, Qt::ControlModifier);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(main_.tbProjName.Text.Get(), "culvert 12");
}

TEST_F(Boxes, AnAnswerCanBeCopiedButNotEdited) {
  EnterTrapezoid();
  hands_.Focus(main_.tbVelocity);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("4.45"));
  Key(Qt::Key_X, Qt::ControlModifier);  // the menu's Cut, which copies
  EXPECT_EQ(services_.clipboard.Text(), "4.45");
  Key(Qt::Key_Delete);
  Keys("9");
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
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(main_.tbFlow.Text.Get().size(), 1'000'000U);
  EXPECT_EQ(Edit(main_.tbDepth).text(), QString());
  Keys("");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Edit(main_.tbDepth).text(), QStringLiteral("3.361"));
}

TEST_F(Boxes, FlowAndDepthSwapTheirLooks) {
  const auto ground = [this](const TextBox& box) { return Edit(box).palette().color(QPalette::Base); };
  const QColor input = QApplication::palette().color(QPalette::Base);
  EXPECT_EQ(ground(main_.tbFlow), input);
  EXPECT_NE(ground(main_.tbDepth), input);
  EXPECT_TRUE(Edit(main_.tbDepth).isReadOnly());
  hands_.Click(main_.mnuSolveForFlow);
  EXPECT_NE(ground(main_.tbFlow), input);
  EXPECT_EQ(ground(main_.tbDepth), input);
  EXPECT_FALSE(Edit(main_.tbDepth).isReadOnly());
  EXPECT_TRUE(Edit(main_.tbFlow).font().bold());
}

TEST_F(Boxes, AnOffenceIsTintedAndItsToolTipStatesTheBound) {
  hands_.Focus(main_.tbSlope);
  Keys("2");
  EXPECT_EQ(Edit(main_.tbSlope).palette().color(QPalette::Base),
            Appearance::OffendingGround(QApplication::palette()));
  EXPECT_EQ(Edit(main_.tbSlope).toolTip(), QStringLiteral("Slope must be greater than 0 and less than 1"));
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Edit(main_.tbSlope).palette().color(QPalette::Base),
            QApplication::palette().color(QPalette::Base));
}

TEST_F(Boxes, ColoursFollowAPaletteThatChanges) {
  const QPalette before = QApplication::palette();
  QPalette dark = before;
  dark.setColor(QPalette::Window, 0x2A2E32);
  dark.setColor(QPalette::WindowText, 0xFCFCFC);
  dark.setColor(QPalette::Base, 0x1B1E20);
  dark.setColor(QPalette::Text, 0xFCFCFC);
  QApplication::setPalette(dark);
  QTest::qWait(1);
  const QColor ground = Edit(main_.tbArea).palette().color(QPalette::Base);
  QApplication::setPalette(before);
  QTest::qWait(1);
  EXPECT_EQ(ground, Appearance::ResultGround(dark));
  EXPECT_EQ(Edit(main_.tbArea).palette().color(QPalette::Base), Appearance::ResultGround(before));
}

}  // namespace

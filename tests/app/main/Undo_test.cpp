// Steps back from a command to the problem before it; what the steps do in a window is a conversation.
#include "app/Declarations.h"
#include "app/project/ProjectFile.h"
#include "support/ProgramStage.h"
#include "support/TestFolder.h"

namespace {

using Undo = ProgramStage;

TEST_P(Undo, GoesBackAHundredSteps) {
  for (int i = 0; i < 103; ++i) {
    Type(Main.tbFlow, std::to_string(i));
    (i % 2 == 0 ? Main.mnuOptionsRect : Main.mnuOptionsTrap).Click();
  }
  for (int i = 0; i < 150; ++i) Main.mnuEditUndo_Click();
  EXPECT_EQ(Text(Main.tbFlow), "3");
}

TEST_P(Undo, KnowsWhatAnotherProgramWroteMeanwhile) {
  const TestFolder folder;
  const std::string path = (folder.Path() / "reach.fwd").string();
  TypeRectangle();
  Fakes.fileDialog.Choices = {path};
  Main.mnuFileSaveAs_Click();
  Main.mnuFileNew_Click();
  ProjectFile::Project other = Main.CurrentProject();
  other.ProjName = "other";
  const std::string bytes = ProjectFile::Write(path, other);
  Main.mnuEditUndo_Click();
  EXPECT_EQ(Text(Main.tbBaseWidth), "10");
  EXPECT_TRUE(Declarations::DataChanged);
  Fakes.messageBox.Answers = {BoxAnswer::No};
  Main.mnuFileSave_Click();
  EXPECT_EQ(Fakes.messageBox.Boxes.back().Text, "reach.fwd was changed by another program. Overwrite it?");
  EXPECT_EQ(BytesOf(path), bytes);
}

INSTANTIATE_LOCALES(Undo);

}  // namespace

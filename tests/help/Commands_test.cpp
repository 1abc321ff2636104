// The help commands of the main window, and what the about box tells.
#include <gmock/gmock.h>

#include "app/Declarations.h"
#include "help/HTMLHelp.h"
#include "help/frmAbout.h"
#include "support/ProgramStage.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using HelpCommands = ProgramStage;

TEST_P(HelpCommands, EachOpensItsPartOrReportsAMissingHelpFile) {
  Main.mnuHelpContents.Click();
  Main.mnuHelpIndex.Click();
  HTMLHelp::ShowFor(Main);
  Main.MoveFocus(Main.tbSlope);
  HTMLHelp::ShowFor(Main);
  EXPECT_THAT(Fakes.helpViewer.Calls,
              ElementsAre("contents", "index", "frmMain.html#", "frmMain.html#tbSlope"));
  EXPECT_THAT(Fakes.messageBox.Boxes, IsEmpty());
  Fakes.helpViewer.HasFile = false;
  Main.mnuHelpContents.Click();
  Main.mnuHelpIndex.Click();
  HTMLHelp::ShowFor(Main);
  ASSERT_EQ(Fakes.messageBox.Boxes.size(), 3U);
  for (const FakeMessageBox::Shown& box : Fakes.messageBox.Boxes) {
    EXPECT_EQ(box.Icon, BoxIcon::Exclamation);
    EXPECT_THAT(box.Text, HasSubstr("flumewise.chm"));
  }
}

TEST_P(HelpCommands, TheHelpWindowClosesWithTheProgramAndNotBefore) {
  Main.tbFlow.Text = "4";
  Fakes.messageBox.Answers = {BoxAnswer::Cancel, BoxAnswer::No};
  Main.mnuFileExit.Click();
  EXPECT_THAT(Fakes.helpViewer.Calls, IsEmpty());
  Main.mnuFileExit.Click();
  EXPECT_THAT(Fakes.helpViewer.Calls, ElementsAre("close"));
}

TEST_P(HelpCommands, TheAboutBoxNamesVersionLicenceAndLibraries) {
  Screen.Then<frmAbout>([](frmAbout& about) {
    EXPECT_THAT(about.lblVersion.Caption.Get(), testing::MatchesRegex("Version [0-9]+\\.[0-9]+\\.[0-9]+"));
    EXPECT_THAT(about.lblLicence.Caption.Get(), HasSubstr("GNU General Public License, version 3 or later"));
    for (const char* const library : {"Qt 6", "QCustomPlot", "CHMLib"})
      EXPECT_THAT(about.lblLibraries.Caption.Get(), HasSubstr(library));
  });
  Main.mnuHelpAbout.Click();
}

INSTANTIATE_LOCALES(HelpCommands);

}  // namespace

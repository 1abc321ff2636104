// The help commands of the main window, and what the about box tells.
#include "app/Declarations.h"
#include "help/HTMLHelp.h"
#include "help/HelpStage.h"
#include "help/frmAbout.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class HelpCommands : public HelpStage {};

TEST_F(HelpCommands, EachOpensItsPartOrTellsThatThereIsNoHelpFile) {
  Main().mnuHelpContents.Click();
  Main().mnuHelpIndex.Click();
  HTMLHelp::ShowFor(Main());
  Main().MoveFocus(Main().tbSlope);
  HTMLHelp::ShowFor(Main());
  EXPECT_THAT(fakes_.helpViewer.Calls,
              ElementsAre("contents", "index", "frmMain.html#", "frmMain.html#tbSlope"));
  EXPECT_THAT(fakes_.messageBox.Boxes, IsEmpty());
  fakes_.helpViewer.HasFile = false;
  Main().mnuHelpContents.Click();
  Main().mnuHelpIndex.Click();
  HTMLHelp::ShowFor(Main());
  ASSERT_EQ(fakes_.messageBox.Boxes.size(), 3U);
  for (const FakeMessageBox::Shown& box : fakes_.messageBox.Boxes) {
    EXPECT_EQ(box.Icon, BoxIcon::Exclamation);
    EXPECT_THAT(box.Text, HasSubstr("flumewise.chm"));
  }
}

TEST_F(HelpCommands, TheHelpWindowClosesWithTheProgramAndNotBefore) {
  Main().tbFlow.Text = "4";
  fakes_.messageBox.Answers = {BoxAnswer::Cancel, BoxAnswer::No};
  Main().mnuFileExit.Click();
  EXPECT_THAT(fakes_.helpViewer.Calls, IsEmpty());
  Main().mnuFileExit.Click();
  EXPECT_THAT(fakes_.helpViewer.Calls, ElementsAre("close"));
}

TEST_F(HelpCommands, TheAboutBoxNamesVersionLicenceAndLibraries) {
  inModal_ = [](Form& form) {
    const auto& about = dynamic_cast<frmAbout&>(form);
    EXPECT_EQ(about.lblName.Caption.Get(), "Flumewise");
    EXPECT_EQ(about.lblVersion.Caption.Get(), "Version " + std::to_string(VersionMajor) + "." +
                                                  std::to_string(VersionMinor) + "." +
                                                  std::to_string(VersionRevision));
    EXPECT_THAT(about.lblLicence.Caption.Get(), HasSubstr("GNU General Public License, version 3 or later"));
    for (const char* const library : {"Qt 6", "QCustomPlot", "CHMLib"})
      EXPECT_THAT(about.lblLibraries.Caption.Get(), HasSubstr(library));
    about.cmdOK.Click();
    EXPECT_FALSE(form.IsLoaded());
  };
  Main().mnuHelpAbout.Click();
}

}  // namespace

// Units, range checks, tidied numbers, and preferences that survive a run.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "app/Declarations.h"
#include "app/FormStuff.h"
#include "app/Units.h"
#include "app/settings/InitialFile.h"
#include "app/settings/SettingsFile.h"
#include "engine/ChannelState.h"
#include "support/FakeServices.h"
#include "support/LocaleTest.h"
#include "support/ScriptedHost.h"
#include "support/TestFolder.h"

namespace {

TEST(UnitTable, CaptionsAndFactorsOfBothSystems) {
  EXPECT_EQ(UnitLabel(0, 2), "cfs");
  EXPECT_EQ(UnitLabel(1, 2), "m^3/s");
  EXPECT_EQ(UnitLabel(1, 8), "");
  // A cubic metre is 3.28084^3 cubic feet, an inch a twelfth of a foot.
  EXPECT_NEAR(UnitFactor(1, 2), 3.28084 * 3.28084 * 3.28084, 1e-5);
  EXPECT_NEAR(UnitFactor(1, 5), 3.28084 * 3.28084, 1e-5);
  EXPECT_EQ(UnitFactor(0, 4), 1.0 / 12);
  EXPECT_EQ(UnitFactor(1, 4) * 1000, UnitFactor(1, 1));
  EXPECT_EQ(UnitLabel(2, 1), "");
  EXPECT_THROW(UnitLabel(3, 1), std::out_of_range);
  EXPECT_THROW(UnitFactor(-1, 1), std::out_of_range);
  EXPECT_THROW(UnitFactor(0, 9), std::out_of_range);
}

class Helpers : public LocaleTest {
 protected:
  Helpers() { InstallServices(fakes_.With(windows_)); }

  FakeServices fakes_;
  ScriptedHost windows_;
};

TEST_P(Helpers, RangeChecksTellTheirBounds) {
  using FormStuff::CheckRange;
  EXPECT_TRUE(CheckRange(Spelled("0.5"), 0, false, 1, false, true));
  EXPECT_TRUE(CheckRange("0", 0, true, 1, false, true));
  EXPECT_TRUE(CheckRange("1", 0, false, 1, true, true));
  EXPECT_TRUE(CheckRange("-7", {}, false, {}, false, true));
  EXPECT_FALSE(CheckRange("", 0, false, 1, false, true));
  EXPECT_TRUE(fakes_.messageBox.Boxes.empty()) << "an empty text is asked for, not complained about";
  EXPECT_FALSE(CheckRange("0", 0, false, 1, false, true));
  EXPECT_FALSE(CheckRange("1", 0, false, 1, false, true));
  EXPECT_FALSE(CheckRange("x", {}, false, 2.5, true, true));
  EXPECT_FALSE(CheckRange("-6", -5, true, {}, false, true));
  EXPECT_FALSE(CheckRange("-6", -5, true, {}, false, false));
  ASSERT_EQ(fakes_.messageBox.Boxes.size(), 4U);
  EXPECT_EQ(fakes_.messageBox.Boxes[0].Title, "Warning");
  EXPECT_EQ(fakes_.messageBox.Boxes[0].Icon, BoxIcon::Exclamation);
  EXPECT_EQ(fakes_.messageBox.Boxes[0].Text, "Must be greater than 0 and less than 1");
  EXPECT_EQ(fakes_.messageBox.Boxes[2].Text, "Must be less than or equal to " + Spelled("2.5"));
  EXPECT_EQ(fakes_.messageBox.Boxes[3].Text, "Must be greater than or equal to-5");
}

TEST_P(Helpers, LeadingZeroOnlyWhereANumberLacksIt) {
  Form form("form");
  TextBox box{&form, "box"};
  struct Case {
    const char *Typed, *Tidy;
  };
  for (const auto& [typed, tidy] :
       {Case{".5", "0.5"}, Case{".25 ", "0.25 "}, Case{".", "."}, Case{"-.5", "-.5"}, Case{"1.5", "1.5"},
        Case{".5x", ".5x"}, Case{"abc", "abc"}, Case{"", ""}, Case{".5e1", ".5e1"}}) {
    box.Text = Spelled(typed);
    EXPECT_EQ(FormStuff::AddLeadingZero(box), Spelled(tidy));
  }
}

INSTANTIATE_LOCALES(Helpers);

class Preferences : public testing::Test {
 protected:
  Preferences() {
    Declarations::Reset();
    SettingsFile::Use(path_);
  }
  ~Preferences() override { SettingsFile::Use(""); }

  void Write(const std::string& text) {
    std::filesystem::create_directories(top_.Path() / "deep");
    std::ofstream(path_, std::ios::binary) << text;
  }
  static std::string Loaded() {
    InitialFile::LoadPreferences();
    return ChannelState.ChannelType + (ChannelState.SolveForFlow ? "|flow|" : "|depth|") +
           std::to_string(ChannelState.UnitsEorM) + "|" + std::to_string(Declarations::SigDigs) + "|" +
           std::to_string(Declarations::EngDigs) + "|" + Declarations::UserPath;
  }

  TestFolder top_;
  std::string path_ = (top_.Path() / "deep" / "settings.ini").string();
};

TEST_F(Preferences, DefaultsWhereNothingUsableIsStored) {
  const std::string defaults = "Circular Channel|depth|0|3|3|c:\\";
  EXPECT_EQ(Loaded(), defaults);
  for (const char* const text :
       {"",
        "[Startup]\nChanType=U-Channel\nSolveForFlow=maybe\nUnitsEorM=2\nSigDigs=7\nEngDigs=0\nUserPath=\n",
        "[Startup]\nSigDigs=33\nEngDigs=-1\nUnitsEorM=\nChanType\n", "ChanType=Triangular Channel\n",
        "[Other]\nSigDigs=5\n", "\xFF\xFE\x00\x01[Startup\n=\n\n]"}) {
    Write(text);
    EXPECT_EQ(Loaded(), defaults) << text;
  }
  std::filesystem::remove(path_);
  std::filesystem::create_directories(path_);
  EXPECT_EQ(Loaded(), defaults);
  InitialFile::SavePreferences();  // a folder in the place of the file: nothing to write to, nothing lost
  EXPECT_TRUE(std::filesystem::is_directory(path_));
}

TEST_F(Preferences, EachAcceptedValueIsTaken) {
  Write(
      "\xEF\xBB\xBF[Startup]\r\nChanType=Irregular "
      "Section\r\nSolveForFlow=True\r\nUnitsEorM=1\r\nSigDigs=1\r\n"
      "EngDigs=5\r\nUserPath=/home/J\xC3\xBCrgen/a = b/\r\n");
  EXPECT_EQ(Loaded(), "Irregular Section|flow|1|1|5|/home/J\xC3\xBCrgen/a = b/");
}

TEST_F(Preferences, SavedInOrderBesideTheLinesOfOthers) {
  ChannelState.ChannelType = "Trapezoidal Channel";
  ChannelState.SolveForFlow = true;
  Declarations::SigDigs = 4;
  Declarations::UserPath = "/data/";
  InitialFile::SavePreferences();
  const std::string startup =
      "[Startup]\nChanType=Trapezoidal Channel\nSolveForFlow=True\nUnitsEorM=0\nSigDigs=4\nEngDigs=3\n"
      "UserPath=/data/\n";
  EXPECT_EQ(BytesOf(path_), startup);
  Write("[Window]\nWidth=5\n" + startup + "[Last]\nSigDigs=2\n");
  Declarations::SigDigs = 1;
  InitialFile::SavePreferences();
  const std::string saved = BytesOf(path_);
  EXPECT_TRUE(saved.starts_with("[Window]\nWidth=5\n[Startup]\nChanType=Trapezoidal Channel\n"));
  EXPECT_NE(saved.find("\nSigDigs=1\nEngDigs=3\n"), std::string::npos);
  EXPECT_TRUE(saved.ends_with("[Last]\nSigDigs=2\n"));
}

TEST(SettingsPath, FollowsTheDesktopsFolders) {
  setenv("XDG_CONFIG_HOME", "/x/config", 1);
  EXPECT_EQ(SettingsFile::DefaultPath(), "/x/config/flumewise/settings.ini");
  setenv("XDG_CONFIG_HOME", "relative", 1);
  setenv("HOME", "/home/me", 1);
  EXPECT_EQ(SettingsFile::DefaultPath(), "/home/me/.config/flumewise/settings.ini");
}

}  // namespace

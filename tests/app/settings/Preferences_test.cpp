// Preferences survive a run, whatever the file of settings holds.
#include "app/settings/InitialFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "app/Declarations.h"
#include "app/settings/RecentFiles.h"
#include "app/settings/SettingsFile.h"
#include "engine/ChannelState.h"
#include "support/TestFolder.h"

namespace {

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

TEST_F(Preferences, TheLatestEightFilesAreRememberedInAFileOfTheirOwn) {
  Write("[Startup]\n");
  for (const char name : std::string("abcdefghiab")) RecentFiles().Add(std::string("/canals/") + name);
  std::string names;
  for (const std::string& path : RecentFiles().Paths()) names += path.back();
  EXPECT_EQ(names, "baihgfed");
  EXPECT_EQ(BytesOf(path_), "[Startup]\n");
  RecentFiles().Clear();
  EXPECT_TRUE(RecentFiles().Paths().empty());
}

TEST(SettingsPath, FollowsTheDesktopsFolders) {
  setenv("XDG_CONFIG_HOME", "/x/config", 1);
  EXPECT_EQ(SettingsFile::DefaultPath(), "/x/config/flumewise/settings.ini");
  setenv("XDG_CONFIG_HOME", "relative", 1);
  setenv("HOME", "/home/me", 1);
  EXPECT_EQ(SettingsFile::DefaultPath(), "/home/me/.config/flumewise/settings.ini");
}

}  // namespace

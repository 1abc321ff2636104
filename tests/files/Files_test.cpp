// What every system does for files: replacing, hard links, locks, copies kept for a recovery.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include "files/ChildProgram.h"
#include "files/KeptCopy.h"
#include "files/OpenFile.h"
#include "files/PathText.h"
#include "files/UserFolders.h"
#include "files/WholeFile.h"
#include "support/TestFolder.h"

namespace fs = std::filesystem;

namespace {

class Files : public testing::Test {
 protected:
  auto FilesInFolder() const { return std::distance(fs::directory_iterator(folder_.Path()), {}); }

  TestFolder folder_;
  const fs::path path_ = folder_.Path() / fs::path(u8"Straße – 渠 1.fwd");
  const std::string name_ = TextOf(path_);
};

TEST_F(Files, AreReplacedWholeUnderAnyName) {
  for (const std::string& bytes :
       {std::string("old\r\nfile\n\x1A"), std::string(70000, 'n'), std::string()}) {
    WholeFile::Write(name_, bytes);
    EXPECT_EQ(WholeFile::Read(name_, 70000), bytes);
    EXPECT_TRUE(WholeFile::IsStill(name_, bytes));
    EXPECT_EQ(FilesInFolder(), 1);
  }
}

TEST_F(Files, KeepTheirHardLinks) {
  const fs::path link = folder_.Path() / "link.fwd";
  WholeFile::Write(name_, "a long old file");
  fs::create_hard_link(path_, link);
  WholeFile::Write(name_, "new");
  EXPECT_EQ(BytesOf(link), "new");
  fs::remove(link);
  WholeFile::Write(name_, "newer");
  EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(Files, ThatCannotBeWrittenStayAndTheReasonIsGiven) {
  const auto reason = [](const std::string& path) -> std::string {
    try {
      WholeFile::Write(path, "new");
      return "written";
    } catch (const std::exception& failure) {
      return WholeFile::ReasonOf(failure);
    }
  };
  EXPECT_EQ(reason(TextOf(folder_.Path() / "missing" / "canal.fwd")), "No such file or directory");
  EXPECT_EQ(reason(TextOf(folder_.Path())), "not a regular file");
  WholeFile::Write(name_, "old");
  {
    // Another program saves it, half way.
    const fs::path beside = folder_.Path() / fs::path(u8".Straße – 渠 1.fwd.saving");
    const OpenFile other(beside, OpenFile::For::Making);
    other.Write("half");
    ASSERT_TRUE(other.Lock(beside));
    EXPECT_EQ(reason(name_), "another program is saving the file");
    EXPECT_EQ(BytesOf(beside), "half");
  }
  EXPECT_EQ(BytesOf(path_), "old");
  EXPECT_EQ(reason(name_), "written");  // what it left behind is no hindrance
  EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(Files, AreLockedByOneProgramAtATimeAndReadByAll) {
  using enum OpenFile::For;
  std::optional<OpenFile> first(std::in_place, path_, Making);
  first->Write("content");
  const OpenFile second(path_, ChangingOrMaking);
  EXPECT_TRUE(first->Lock(path_));
  EXPECT_FALSE(second.Lock(path_));
  EXPECT_EQ(OpenFile(path_, Reading).Read(), "content");
  EXPECT_THROW(OpenFile(path_, Making), std::system_error);
  first.reset();
  EXPECT_TRUE(second.Lock(path_));
  fs::rename(path_, folder_.Path() / "moved");
  WholeFile::Write(name_, "another file");
  EXPECT_FALSE(second.Lock(path_)) << "a lock on a file that the path leads to no more";
}

TEST_F(Files, ThatAreKeptForARecoveryBelongToOneProgram) {
  ASSERT_TRUE(UserFolders::Config().is_absolute() && UserFolders::Data().is_absolute());
  std::optional<KeptCopy> copy(std::in_place, name_, "work");
  const fs::path kept = copy->Path();
  EXPECT_THAT(KeptCopy::All(), testing::Contains(kept));
  EXPECT_FALSE(KeptCopy::TakeOver(kept));
  copy->Write("more work");
  copy.reset();
  std::optional<KeptCopy> taken = KeptCopy::TakeOver(kept);
  ASSERT_TRUE(taken);
  EXPECT_EQ(taken->Origin(), name_);
  EXPECT_EQ(BytesOf(kept), "more work");
  const fs::path aside = taken->SetAside();
  EXPECT_FALSE(taken->Exists());
  EXPECT_THAT(KeptCopy::All(), testing::Not(testing::Contains(aside)));
  EXPECT_TRUE(fs::remove(aside));
  taken.reset();
  EXPECT_FALSE(fs::exists(fs::path(kept) += ".lock"));
}

TEST(ChildProgram, GetsItsWordsAsTheyAre) {
  constexpr const char* Mark = "child";
  const std::vector<std::string> words = testing::internal::GetArgvs();
  if (words.size() > 2 && words[words.size() - 2] == Mark) {  // this is the child
    std::printf("<%s>", words.back().c_str());
    std::fflush(stdout);
    std::_Exit(3);
  }
  for (const char* const word : {"Straße 渠", "", "a \"b\" c", "C:\\folder\\", "\\\\\"", "100 %"}) {
    ChildProgram child({words[0], "--gtest_filter=ChildProgram.*", Mark, word});
    const auto [output, status] = child.Wait();
    EXPECT_TRUE(output.ends_with("<" + std::string(word) + ">")) << output;
    EXPECT_EQ(status, 3);
  }
  EXPECT_THROW(ChildProgram({"no-such-program-anywhere"}), std::system_error);
}

}  // namespace

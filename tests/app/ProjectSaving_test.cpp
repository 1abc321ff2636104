// Project files on the disk: whatever happens while one is saved, the old or the new project is there and
// whole.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "app/project/ProjectFile.h"
#include "files/SafeReplace.h"
#include "support/TestFolder.h"

namespace fs = std::filesystem;

namespace {

using ProjectFile::Project;

/// Rights do not bind root: a test of them runs as nobody then.
class AsOrdinaryUser {
 public:
  AsOrdinaryUser() { EXPECT_TRUE(user_ != 0 || seteuid(65534) == 0); }
  ~AsOrdinaryUser() { EXPECT_EQ(seteuid(user_), 0); }
  AsOrdinaryUser(const AsOrdinaryUser&) = delete;
  AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

 private:
  uid_t user_ = geteuid();
};

/// No file may grow beyond a size, as on a disk that is nearly full.
class NearlyFullDisk {
 public:
  explicit NearlyFullDisk(rlim_t size) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{size, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~NearlyFullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  NearlyFullDisk(const NearlyFullDisk&) = delete;
  NearlyFullDisk& operator=(const NearlyFullDisk&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

class ProjectSaving : public testing::Test {
 protected:
  ProjectSaving() {
    fs::permissions(folder_, fs::perms(0755));
    old_.ChannelType = new_.ChannelType = "Circular Channel";
    old_.ProjName = "old";
    new_.ProjName = std::string(30000, 'n');
  }
  ~ProjectSaving() override { fs::permissions(folder_, fs::perms(0755)); }

  void SaveOld() { ProjectFile::Write(path_, old_); }
  auto FilesInFolder() const { return std::distance(fs::directory_iterator(folder_), {}); }
  void ExpectNotSaved(const fs::path& path) {
    EXPECT_THROW(ProjectFile::Write(path, new_), std::runtime_error) << path;
  }
  static void ExpectNotRead(const fs::path& path) {
    EXPECT_THROW(ProjectFile::Read(path), std::runtime_error) << path;
  }

  TestFolder temporary_;
  const fs::path folder_ = temporary_.Path(), path_ = folder_ / "canal.fwd";
  Project old_, new_;
};

/// Saves in a process of its own, killed when it has entered or left that many system calls. False when it
/// had finished before.
bool KilledWhileSaving(const fs::path& path, const Project& project, int step) {
  const pid_t child = fork();
  if (child == 0) {
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    raise(SIGSTOP);
    try {
      ProjectFile::Write(path, project);
      _exit(EXIT_SUCCESS);
    } catch (...) {
      _exit(EXIT_FAILURE);
    }
  }
  int status = 0;
  for (waitpid(child, &status, 0); step > 0 && WIFSTOPPED(status); --step) {
    ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
    waitpid(child, &status, 0);
  }
  if (!WIFSTOPPED(status)) {
    EXPECT_EQ(status, EXIT_SUCCESS);
    return false;
  }
  kill(child, SIGKILL);
  waitpid(child, &status, 0);
  return true;
}

TEST_F(ProjectSaving, SurvivesAThousandKills) {
  const std::string oldBytes = ProjectFile::Format(old_);
  const std::string newBytes = ProjectFile::Format(new_);
  SaveOld();
  int kills = 0, step = 0, keptOld = 0, tookNew = 0, left = 0;
  while (kills < 1000) {
    if (!KilledWhileSaving(path_, new_, step++)) {
      ASSERT_GT(step, 10) << "the child did not let itself be traced";
      EXPECT_EQ(BytesOf(path_), newBytes);
      EXPECT_EQ(FilesInFolder(), 1);  // what the kills left is gone
      SaveOld();
      step = 0;
      continue;
    }
    ++kills;
    const std::string bytes = BytesOf(path_);
    ASSERT_TRUE(bytes == oldBytes || bytes == newBytes) << "killed at step " << step;
    ASSERT_LE(FilesInFolder(), 2);
    left += FilesInFolder() == 2;
    ++(bytes == oldBytes ? keptOld : tookNew);
    if (bytes == newBytes) SaveOld();
  }
  EXPECT_GT(keptOld, 100);
  EXPECT_GT(tookNew, 10);
  EXPECT_GT(left, 100);
}

TEST_F(ProjectSaving, KeepsTheOldFileWhenTheDiskIsFull) {
  new_.ProjName = "new";
  SaveOld();
  const std::string oldBytes = BytesOf(path_);
  const size_t size = ProjectFile::Format(new_).size();
  for (size_t limit = 0; limit < size; ++limit) {
    {
      const NearlyFullDisk disk(limit);
      ExpectNotSaved(path_);
    }
    ASSERT_EQ(BytesOf(path_), oldBytes);
    ASSERT_EQ(FilesInFolder(), 1);
  }
  const NearlyFullDisk disk(size);
  ProjectFile::Write(path_, new_);
}

TEST_F(ProjectSaving, RefusesWhereNothingMayBeWritten) {
  SaveOld();
  fs::permissions(folder_, fs::perms(0555));
  {
    const AsOrdinaryUser user;
    ExpectNotSaved(path_);
    ExpectNotSaved(folder_ / "other.fwd");
  }
  fs::permissions(folder_, fs::perms(0777));
  fs::permissions(path_, fs::perms(0444));
  {
    const AsOrdinaryUser user;
    ExpectNotSaved(path_);  // the folder would let it be replaced, but its owner protected it
  }
  EXPECT_EQ(ProjectFile::Read(path_), old_);
  EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(ProjectSaving, RefusesWhatIsNoFile) {
  fs::create_directory(folder_ / "folder.fwd");
  ASSERT_EQ(mkfifo((folder_ / "pipe.fwd").c_str(), 0666), 0);
  fs::create_symlink("loop.fwd", folder_ / "loop.fwd");
  for (const char* name : {"folder.fwd", "pipe.fwd", "loop.fwd", "missing/canal.fwd", "missing/", ""}) {
    const fs::path path = *name == '\0' ? fs::path() : folder_ / name;
    ExpectNotSaved(path);
    ExpectNotRead(path);
  }
  EXPECT_TRUE(fs::is_fifo(folder_ / "pipe.fwd"));
  EXPECT_EQ(FilesInFolder(), 3);
}

TEST_F(ProjectSaving, ReadsNeitherWhatIsTooLargeNorWhatIsProtected) {
  { const std::ofstream zeros(path_); }
  fs::resize_file(path_, 1 << 30);
  ExpectNotRead(path_);
  ExpectNotRead("/dev/zero");
  SaveOld();
  fs::permissions(path_, fs::perms::none);
  const AsOrdinaryUser user;
  ExpectNotRead(path_);
}

TEST_F(ProjectSaving, RefusesAProjectThatWouldNotOpen) {
  SaveOld();
  new_.Points.resize(102);
  ExpectNotSaved(path_);
  EXPECT_EQ(ProjectFile::Read(path_), old_);
}

TEST_F(ProjectSaving, FollowsLinks) {
  fs::create_directory(folder_ / "far");
  fs::create_symlink("far/second.fwd", folder_ / "first.fwd");
  fs::create_symlink("../canal.fwd", folder_ / "far" / "second.fwd");
  for (const Project& project : {old_, new_}) {  // at first the last link leads to nothing
    ProjectFile::Write(folder_ / "first.fwd", project);
    EXPECT_EQ(ProjectFile::Read(path_), project);
    EXPECT_FALSE(fs::is_symlink(path_));
  }
  EXPECT_TRUE(fs::is_symlink(folder_ / "first.fwd"));
  EXPECT_TRUE(fs::is_symlink(folder_ / "far" / "second.fwd"));
}

TEST_F(ProjectSaving, KeepsRightsAndOwner) {
  const mode_t mask = umask(027);
  SaveOld();
  EXPECT_EQ(fs::status(path_).permissions(), fs::perms(0640));
  fs::permissions(path_, fs::perms(0606));
  const bool given = chown(path_.c_str(), 65534, 65534) == 0;  // only root can
  ProjectFile::Write(path_, new_);
  umask(mask);
  EXPECT_EQ(fs::status(path_).permissions(), fs::perms(0606));
  struct stat status {};
  ASSERT_EQ(stat(path_.c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, given ? 65534 : geteuid());
}

TEST_F(ProjectSaving, LetsOneProgramSaveAtATime) {
  SafeReplace other(path_);
  other.Append("half a pro");
  ExpectNotSaved(path_);
  EXPECT_EQ(other.ReadBack(), "half a pro");
  other.Append("ject");
  other.Commit();
  EXPECT_EQ(BytesOf(path_), "half a project");
  EXPECT_EQ(FilesInFolder(), 1);
}

}  // namespace

// Project files on the disk: whatever happens while one is saved, the old or the new project is there and
// whole.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "app/project/ProjectFile.h"
#include "files/KeptCopy.h"
#include "files/WholeFile.h"
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
    std::signal(SIGXFSZ, SIG_DFL);
  }
  ~NearlyFullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
  NearlyFullDisk(const NearlyFullDisk&) = delete;
  NearlyFullDisk& operator=(const NearlyFullDisk&) = delete;

 private:
  rlimit before_{};
};

class ProjectSaving : public testing::Test {
 protected:
  ProjectSaving() {
    setenv("XDG_DATA_HOME", data_.Path().c_str(), 1);
    for (const fs::path& folder : {folder_, data_.Path()}) fs::permissions(folder, fs::perms(0777));
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

  TestFolder temporary_, data_;
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

/// What a next start would open after a kill: the file, or the copy that was kept meanwhile.
std::vector<std::string> LeftAfterKill(const fs::path& path) {
  std::vector<std::string> left = {BytesOf(path)};
  for (const fs::path& each : KeptCopy::All()) {
    auto copy = KeptCopy::TakeOver(each);
    EXPECT_TRUE(copy) << "a lock outlived its program";
    EXPECT_EQ(copy->Origin(), path);
    left.push_back(BytesOf(each));
    copy->Remove();
  }
  return left;
}

TEST_F(ProjectSaving, SurvivesAThousandKills) {
  const std::string oldBytes = ProjectFile::Format(old_);
  const std::string newBytes = ProjectFile::Format(new_);
  for (const bool inPlace : {false, true}) {
    SaveOld();
    if (inPlace) fs::create_hard_link(path_, data_.Path() / "link.fwd");
    int kills = 0, step = 0, keptOld = 0, tookNew = 0, onlyKept = 0;
    while (kills < 500) {
      if (!KilledWhileSaving(path_, new_, step++)) {
        ASSERT_GT(step, 10) << "the child did not let itself be traced";
        EXPECT_EQ(LeftAfterKill(path_), std::vector{newBytes});
        EXPECT_EQ(FilesInFolder(), 1);  // what the kills left is gone
        SaveOld();
        step = 0;
        continue;
      }
      ++kills;
      const std::vector<std::string> left = LeftAfterKill(path_);
      const bool old = left[0] == oldBytes;
      const bool whole = old || left[0] == newBytes;
      ASSERT_TRUE(whole || (inPlace && left.size() == 2 && left[1] == newBytes)) << "killed at step " << step;
      ASSERT_LE(FilesInFolder(), 2);
      ++(old ? keptOld : whole ? tookNew : onlyKept);
      if (!old) SaveOld();
    }
    EXPECT_GT(keptOld, 100);
    EXPECT_GT(tookNew, 0);
    EXPECT_EQ(onlyKept > 0, inPlace);
  }
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
  umask(mask);
  EXPECT_EQ(fs::status(path_).permissions(), fs::perms(0640));
  // The list of a file that one more user may write: owner rw, user 65534 rw, group r, mask rw, others none.
  const unsigned char list[] = {2, 0,   0,   0,   1,   0,   6,  0, 255, 255, 255, 255, 2,   0,  6,
                                0, 254, 255, 0,   0,   4,   0,  4, 0,   255, 255, 255, 255, 16, 0,
                                6, 0,   255, 255, 255, 255, 32, 0, 0,   0,   255, 255, 255, 255};
  constexpr const char* List = "system.posix_acl_access";
  constexpr const char* Note = "user.surveyor";
  if (setxattr(path_.c_str(), List, list, sizeof list, 0) != 0 ||
      setxattr(path_.c_str(), Note, "Ann", 3, 0) != 0)
    GTEST_SKIP() << "a file system without attributes";
  const auto attribute = [this](const char* name) {
    char value[64];
    const ssize_t size = getxattr(path_.c_str(), name, value, sizeof value);
    return std::string(value, size < 0 ? 0 : static_cast<size_t>(size));
  };
  const auto status = [this] {
    struct stat read {};
    EXPECT_EQ(stat(path_.c_str(), &read), 0);
    return read;
  };
  const auto expectSaved = [&](const Project& project) {
    const struct stat before = status();
    ProjectFile::Write(path_, project);
    const struct stat after = status();
    EXPECT_EQ(ProjectFile::Read(path_), project);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
    EXPECT_EQ(after.st_nlink, before.st_nlink);
    EXPECT_EQ(attribute(List), std::string(reinterpret_cast<const char*>(list), sizeof list));
    EXPECT_EQ(attribute(Note), "Ann");
    EXPECT_TRUE(KeptCopy::All().empty());
    return after.st_ino != before.st_ino;
  };
  EXPECT_TRUE(expectSaved(new_)) << "replaced by rename";
  fs::create_hard_link(path_, folder_ / "link.fwd");
  EXPECT_FALSE(expectSaved(old_));
  EXPECT_EQ(ProjectFile::Read(folder_ / "link.fwd"), old_);
  fs::remove(folder_ / "link.fwd");
  if (geteuid() != 0 || chown(path_.c_str(), 4711, 4712) != 0) return;
  EXPECT_TRUE(expectSaved(new_)) << "root gives the new file to the owner";
  fs::remove_all(data_.Path() / "Flumewise");  // root's own copies
  const AsOrdinaryUser user;
  EXPECT_FALSE(expectSaved(old_)) << "another user would become its owner";
  EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(ProjectSaving, WritesInPlaceWhereTheFolderIsProtected) {
  SaveOld();
  fs::permissions(path_, fs::perms(0666));
  fs::permissions(folder_, fs::perms(0555));
  const AsOrdinaryUser user;
  ProjectFile::Write(path_, new_);
  EXPECT_EQ(ProjectFile::Read(path_), new_);
}

TEST_F(ProjectSaving, DoesNotInheritAnAccessListFromTheFolder) {
  SaveOld();
  const unsigned char list[] = {2, 0,   0,   0,   1,   0,   7,  0, 255, 255, 255, 255, 2,   0,  7,
                                0, 254, 255, 0,   0,   4,   0,  5, 0,   255, 255, 255, 255, 16, 0,
                                7, 0,   255, 255, 255, 255, 32, 0, 5,   0,   255, 255, 255, 255};
  if (setxattr(folder_.c_str(), "system.posix_acl_default", list, sizeof list, 0) != 0) GTEST_SKIP();
  ProjectFile::Write(path_, new_);
  EXPECT_EQ(getxattr(path_.c_str(), "system.posix_acl_access", nullptr, 0), -1);
}

TEST_F(ProjectSaving, SavesUnderEveryNameThatTheSystemTakes) {
  for (const size_t length : {247U, 248U, 255U}) {
    const fs::path path = folder_ / (std::string(length - 4, 'n') + ".fwd");
    for (const Project& project : {old_, new_}) ProjectFile::Write(path, project);
    EXPECT_EQ(ProjectFile::Read(path), new_) << length;
  }
  EXPECT_EQ(FilesInFolder(), 3);
  ExpectNotSaved(folder_ / std::string(256, 'n'));
}

TEST_F(ProjectSaving, LetsOneProgramSaveAtATime) {
  const fs::path beside = folder_ / ".canal.fwd.saving";
  std::ofstream(beside) << "half a project";
  const int other = open(beside.c_str(), O_RDWR);
  ASSERT_EQ(flock(other, LOCK_EX), 0);
  ExpectNotSaved(path_);
  EXPECT_EQ(BytesOf(beside), "half a project");
  close(other);
  SaveOld();
  EXPECT_EQ(FilesInFolder(), 1);
}

}  // namespace

// See SafeReplace.h. Locks and flushing to the disk need the system's own calls, which stand here alone.
#include "files/SafeReplace.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <stdexcept>
#include <system_error>

namespace fs = std::filesystem;

namespace {

[[noreturn]] void FailStep(const char* step) {
  throw std::system_error(errno, std::generic_category(), step);
}

fs::path FollowLinks(fs::path path) {
  constexpr int MostLinks = 40;
  for (int links = 0; fs::is_symlink(path); ++links) {
    if (links == MostLinks) throw std::runtime_error("the link leads to itself");
    path = path.parent_path() / fs::read_symlink(path);
  }
  return path;
}

bool IsWritableFile(const fs::path& path) {
  return fs::is_regular_file(path) && faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

/// Locks the file; false when another program holds it, or has given its name away meanwhile. A file system
/// without locks does not hinder saving.
bool Lock(int file, const fs::path& name) {
  if (flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return false;
  struct stat held {};
  struct stat named {};
  return fstat(file, &held) == 0 && stat(name.c_str(), &named) == 0 && held.st_dev == named.st_dev &&
         held.st_ino == named.st_ino;
}

/// Removes the file that a killed program left; one that is locked stays.
void RemoveAbandoned(const fs::path& name) {
  const int file = open(name.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (file < 0 && errno == ENOENT) return;
  if (file < 0) FailStep("open what was left");
  if (Lock(file, name)) unlink(name.c_str());
  close(file);
}

/// Makes a file that did not exist and locks it, so that no other program takes it for abandoned.
int CreateLocked(const fs::path& name, mode_t mode) {
  constexpr int Attempts = 3;  // another program may come and go between two steps
  for (int attempt = 0; attempt < Attempts; ++attempt) {
    const int file = open(name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (file < 0 && errno != EEXIST) FailStep("create");
    if (file < 0) {
      RemoveAbandoned(name);
    } else if (Lock(file, name)) {
      return file;
    } else {
      close(file);
    }
  }
  throw std::runtime_error("another program is replacing the file");
}

/// Owner and permissions of `old`. The owner stays where the system allows it to be given.
void TakeOver(int file, const struct stat& old) {
  [[maybe_unused]] const int given = fchown(file, old.st_uid, old.st_gid);
  if (fchmod(file, old.st_mode & 07777) != 0) FailStep("keep the permissions");
}

/// A rename outlives a power cut once its folder is flushed. Not all file systems can do that, and by now the
/// file is replaced: no failure.
void FlushFolder(const fs::path& file) {
  const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
  const int opened = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (opened < 0) return;
  fsync(opened);
  close(opened);
}

}  // namespace

SafeReplace::SafeReplace(const std::string& path) : target_(FollowLinks(path)) {
  if (!target_.has_filename()) throw std::runtime_error("no file name");
  const bool exists = fs::exists(target_);
  if (exists && !IsWritableFile(target_)) throw std::runtime_error("no file that may be replaced");
  fresh_ = target_.parent_path() / ("." + target_.filename().string() + ".saving");
  file_ = CreateLocked(fresh_, exists ? 0600 : 0666);
}

SafeReplace::~SafeReplace() {
  if (!committed_) unlink(fresh_.c_str());
  close(file_);
}

void SafeReplace::Append(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file_, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) FailStep("write");
    if (written > 0) bytes.remove_prefix(static_cast<size_t>(written));
  }
}

std::string SafeReplace::ReadBack() const {
  std::string bytes;
  std::array<char, 1 << 14> part{};
  for (;;) {
    const ssize_t count = pread(file_, part.data(), part.size(), static_cast<off_t>(bytes.size()));
    if (count == 0) return bytes;
    if (count < 0 && errno != EINTR) FailStep("read back");
    if (count > 0) bytes.append(part.data(), static_cast<size_t>(count));
  }
}

void SafeReplace::Commit() {
  struct stat old {};
  if (stat(target_.c_str(), &old) == 0) TakeOver(file_, old);
  if (fsync(file_) != 0) FailStep("flush");
  fs::rename(fresh_, target_);
  committed_ = true;
  FlushFolder(target_);
}

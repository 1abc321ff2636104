// See OpenFile.h.
#include "files/OpenFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <stdexcept>
#include <system_error>
#include <utility>

void FailStep(const char* step) {
  throw std::system_error(errno, std::generic_category(), step);
}

namespace {

int FlagsOf(OpenFile::For purpose) {
  constexpr int Common = O_CLOEXEC | O_NONBLOCK;
  constexpr int Changing = Common | O_RDWR | O_NOFOLLOW;
  switch (purpose) {
    case OpenFile::For::Reading:
      return Common | O_RDONLY;
    case OpenFile::For::Changing:
      return Changing;
    case OpenFile::For::ChangingOrMaking:
      return Changing | O_CREAT;
    case OpenFile::For::Making:
      break;
  }
  return Changing | O_CREAT | O_EXCL;
}

struct stat StatusOf(int file) {
  struct stat status {};
  if (fstat(file, &status) != 0) FailStep("read the status");
  return status;
}

}  // namespace

OpenFile::OpenFile(const std::filesystem::path& path, For purpose, Access access)
    : number_(open(path.c_str(), FlagsOf(purpose), access == Access::Private ? 0600 : 0666)) {
  if (number_ < 0) FailStep("open");
}

OpenFile::OpenFile(OpenFile&& other) noexcept : number_(std::exchange(other.number_, -1)) {}

OpenFile::~OpenFile() {
  Close();
}

void OpenFile::Close() {
  if (number_ >= 0) close(std::exchange(number_, -1));
}

std::size_t OpenFile::Names() const {
  return StatusOf(number_).st_nlink;
}

bool OpenFile::Lock(const std::filesystem::path& path) const {
  if (flock(number_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return false;
  const struct stat held = StatusOf(number_);
  struct stat named {};
  return stat(path.c_str(), &named) == 0 && held.st_dev == named.st_dev && held.st_ino == named.st_ino;
}

std::string OpenFile::Read() const {
  std::string bytes;
  std::array<char, 1 << 14> part{};
  for (;;) {
    const ssize_t count = pread(number_, part.data(), part.size(), static_cast<off_t>(bytes.size()));
    if (count == 0) return bytes;
    if (count < 0 && errno != EINTR) FailStep("read");
    if (count > 0) bytes.append(part.data(), static_cast<size_t>(count));
  }
}

void OpenFile::Write(std::string_view bytes) const {
  // A limit on the size of files is a failure of the write, not the end of the program.
  std::signal(SIGXFSZ, SIG_IGN);
  const auto size = static_cast<off_t>(bytes.size());
  const int refusal = size == 0 ? 0 : posix_fallocate(number_, 0, size);
  if (refusal == ENOSPC || refusal == EDQUOT || refusal == EFBIG)
    throw std::system_error(refusal, std::generic_category(), "reserve");
  for (off_t at = 0; at < size;) {
    const ssize_t written = pwrite(number_, bytes.data() + at, static_cast<size_t>(size - at), at);
    if (written < 0 && errno != EINTR) FailStep("write");
    if (written > 0) at += written;
  }
  if (ftruncate(number_, size) != 0) FailStep("cut to size");
  Flush();
  if (Read() != bytes) throw std::runtime_error("the disk does not return what was written");
}

void OpenFile::Flush() const {
  if (fsync(number_) != 0) FailStep("flush");
}

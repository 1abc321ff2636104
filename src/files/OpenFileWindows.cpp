// See OpenFile.h. The numbers of open files are those of the C library.
#include "files/OpenFile.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <system_error>
#include <utility>

void FailStep(const char* step) {
  throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), step);
}

namespace {

struct Way {
  DWORD Rights, Disposition;
};

Way WayOf(OpenFile::For purpose) {
  constexpr DWORD Changing = GENERIC_READ | GENERIC_WRITE;
  switch (purpose) {
    case OpenFile::For::Reading:
      return {GENERIC_READ, OPEN_EXISTING};
    case OpenFile::For::Changing:
      return {Changing, OPEN_EXISTING};
    case OpenFile::For::ChangingOrMaking:
      return {Changing, OPEN_ALWAYS};
    case OpenFile::For::Making:
      break;
  }
  return {Changing, CREATE_NEW};
}

/// Whoever opens a file lets others read, change, rename and remove it: locks alone keep programs apart.
int Open(const std::filesystem::path& path, Way way) {
  const HANDLE file =
      CreateFileW(path.c_str(), way.Rights, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                  way.Disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) FailStep("open");
  return _open_osfhandle(reinterpret_cast<std::intptr_t>(file), _O_BINARY | _O_NOINHERIT);
}

HANDLE HandleOf(int number) {
  return reinterpret_cast<HANDLE>(_get_osfhandle(number));  // NOLINT(performance-no-int-to-ptr)
}

BY_HANDLE_FILE_INFORMATION StatusOf(int number) {
  BY_HANDLE_FILE_INFORMATION status{};
  if (!GetFileInformationByHandle(HandleOf(number), &status)) FailStep("read the status");
  return status;
}

bool AreSame(const BY_HANDLE_FILE_INFORMATION& one, const BY_HANDLE_FILE_INFORMATION& other) {
  return one.dwVolumeSerialNumber == other.dwVolumeSerialNumber &&
         one.nFileIndexHigh == other.nFileIndexHigh && one.nFileIndexLow == other.nFileIndexLow;
}

}  // namespace

// A new file is as private as its folder: the user's own are.
OpenFile::OpenFile(const std::filesystem::path& path, For purpose, Access /*access*/)
    : number_(Open(path, WayOf(purpose))) {}

OpenFile::OpenFile(OpenFile&& other) noexcept : number_(std::exchange(other.number_, -1)) {}

OpenFile::~OpenFile() {
  Close();
}

void OpenFile::Close() {
  if (number_ >= 0) _close(std::exchange(number_, -1));
}

std::size_t OpenFile::Names() const {
  return StatusOf(number_).nNumberOfLinks;
}

bool OpenFile::Lock(const std::filesystem::path& path) const {
  // Nobody else reads or writes bytes that are locked, so it is one far behind any content.
  OVERLAPPED last{};
  last.OffsetHigh = MAXLONG;
  if (!LockFileEx(HandleOf(number_), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &last) &&
      (GetLastError() == ERROR_LOCK_VIOLATION || GetLastError() == ERROR_IO_PENDING))
    return false;
  try {
    return AreSame(StatusOf(number_), StatusOf(OpenFile(path, For::Reading).Number()));
  } catch (const std::system_error&) {
    return false;
  }
}

std::string OpenFile::Read() const {
  std::string bytes;
  std::array<char, 1 << 14> part{};
  _lseeki64(number_, 0, SEEK_SET);
  for (;;) {
    const int count = _read(number_, part.data(), part.size());
    if (count < 0) FailStep("read");
    if (count == 0) return bytes;
    bytes.append(part.data(), static_cast<std::size_t>(count));
  }
}

void OpenFile::Write(std::string_view bytes) const {
  constexpr std::size_t Most = 1 << 30;  // at once
  const auto size = static_cast<__int64>(bytes.size());
  if (size > _filelengthi64(number_) && _chsize_s(number_, size) != 0) FailStep("reserve");
  _lseeki64(number_, 0, SEEK_SET);
  for (std::string_view left = bytes; !left.empty();) {
    const int written = _write(number_, left.data(), static_cast<unsigned>(std::min(left.size(), Most)));
    if (written < 0) FailStep("write");
    left.remove_prefix(static_cast<std::size_t>(written));
  }
  if (_chsize_s(number_, size) != 0) FailStep("cut to size");
  Flush();
  if (Read() != bytes) throw std::runtime_error("the disk does not return what was written");
}

void OpenFile::Flush() const {
  if (!FlushFileBuffers(HandleOf(number_))) FailStep("flush");
}

// See SafeReplace.h.
#include "files/SafeReplace.h"

#include <algorithm>
#include <array>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <system_error>

#include "files/OpenFile.h"
#include "files/TakePlace.h"

namespace fs = std::filesystem;

namespace {

bool IsRefused(const std::system_error& failure) {
  constexpr std::array Refusals = {std::errc::permission_denied, std::errc::operation_not_permitted,
                                   std::errc::read_only_file_system, std::errc::device_or_resource_busy};
  return std::ranges::any_of(Refusals, [&](std::errc refusal) { return failure.code() == refusal; });
}

/// Removes the file that a killed program left; one that is locked stays.
void RemoveAbandoned(const fs::path& path) {
  try {
    const OpenFile left(path, OpenFile::For::Changing);
    if (left.Lock(path)) fs::remove(path);
  } catch (const std::system_error& failure) {
    if (failure.code() != std::errc::no_such_file_or_directory) throw;
  }
}

/// Makes a file that did not exist and locks it, so that no other program takes it for abandoned.
OpenFile CreateLocked(const fs::path& path, OpenFile::Access access) {
  constexpr int Attempts = 3;  // another program may come and go between two steps
  for (int attempt = 0; attempt < Attempts; ++attempt) {
    try {
      OpenFile file(path, OpenFile::For::Making, access);
      if (file.Lock(path)) return file;
    } catch (const std::system_error& failure) {
      if (failure.code() != std::errc::file_exists) throw;
      RemoveAbandoned(path);
    }
  }
  throw std::runtime_error("another program is saving the file");
}

/// The hidden name beside the file; a short one where the file's own name leaves no room for more.
fs::path NameBeside(const fs::path& file, bool isShort) {
  fs::path name = ".";
  if (isShort) {
    std::ostringstream digits;
    digits << std::hex << fs::hash_value(file.filename());
    name += digits.str();
  } else {
    name += file.filename();
  }
  return file.parent_path() / (name += ".saving");
}

/// The new file until it takes the old one's place; gone with this object if it does not.
class NewFile {
 public:
  NewFile(fs::path path, OpenFile::Access access)
      : path_(std::move(path)), file_(CreateLocked(path_, access)) {}
  ~NewFile() {
    std::error_code gone;
    if (!placed_) fs::remove(path_, gone);
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  const OpenFile& File() const { return file_; }
  bool Place(const fs::path& target) {
    placed_ = TakePlace(file_, path_, target);
    return placed_;
  }

 private:
  fs::path path_;
  OpenFile file_;
  bool placed_ = false;
};

void MakeBeside(std::optional<NewFile>& made, const fs::path& file, OpenFile::Access access) {
  try {
    made.emplace(NameBeside(file, false), access);
  } catch (const std::system_error& failure) {
    if (failure.code() != std::errc::filename_too_long) throw;
    made.emplace(NameBeside(file, true), access);
  }
}

}  // namespace

bool SafeReplace(const fs::path& file, std::string_view bytes) {
  const bool exists = fs::exists(file);
  if (exists && OpenFile(file, OpenFile::For::Reading).Names() > 1) return false;
  try {
    std::optional<NewFile> made;
    MakeBeside(made, file, exists ? OpenFile::Access::Private : OpenFile::Access::Usual);
    made->File().Write(bytes);
    return made->Place(file);
  } catch (const std::system_error& failure) {
    if (exists && IsRefused(failure)) return false;
    throw;
  }
}

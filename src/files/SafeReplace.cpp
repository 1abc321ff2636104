// See SafeReplace.h.
#include "files/SafeReplace.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <system_error>

#include "files/FileAttributes.h"
#include "files/OpenFile.h"

namespace fs = std::filesystem;

namespace {

bool IsRefused(const std::system_error& failure) {
  const int code = failure.code().value();
  return code == EACCES || code == EPERM || code == EROFS || code == EBUSY;
}

/// Removes the file that a killed program left; one that is locked stays.
void RemoveAbandoned(const fs::path& path) {
  try {
    const OpenFile left(path, O_RDWR | O_NOFOLLOW | O_NONBLOCK);
    if (left.Lock(path)) unlink(path.c_str());
  } catch (const std::system_error& failure) {
    if (failure.code().value() != ENOENT) throw;
  }
}

/// Makes a file that did not exist and locks it, so that no other program takes it for abandoned.
OpenFile CreateLocked(const fs::path& path, mode_t mode) {
  constexpr int Attempts = 3;  // another program may come and go between two steps
  for (int attempt = 0; attempt < Attempts; ++attempt) {
    try {
      OpenFile file(path, O_RDWR | O_CREAT | O_EXCL, mode);
      if (file.Lock(path)) return file;
    } catch (const std::system_error& failure) {
      if (failure.code().value() != EEXIST) throw;
      RemoveAbandoned(path);
    }
  }
  throw std::runtime_error("another program is saving the file");
}

/// The hidden name beside the file; a short one where the file's own name leaves no room for more.
fs::path NameBeside(const fs::path& file, bool isShort) {
  std::string name = file.filename().string();
  if (isShort) {
    std::ostringstream digits;
    digits << std::hex << std::hash<std::string>{}(name);
    name = digits.str();
  }
  return file.parent_path() / ("." + name + ".saving");
}

/// The new file until it takes the old one's place; gone with this object if it does not.
class NewFile {
 public:
  NewFile(fs::path path, mode_t mode) : path_(std::move(path)), file_(CreateLocked(path_, mode)) {}
  ~NewFile() {
    if (!placed_) unlink(path_.c_str());
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  const OpenFile& File() const { return file_; }
  void Place(const fs::path& target) {
    file_.Flush();  // the attributes
    fs::rename(path_, target);
    placed_ = true;
  }

 private:
  fs::path path_;
  OpenFile file_;
  bool placed_ = false;
};

void MakeBeside(std::optional<NewFile>& made, const fs::path& file, mode_t mode) {
  try {
    made.emplace(NameBeside(file, false), mode);
  } catch (const std::system_error& failure) {
    if (failure.code().value() != ENAMETOOLONG) throw;
    made.emplace(NameBeside(file, true), mode);
  }
}

/// A rename outlives a power cut once its folder is flushed. Not all file systems can do that, and by now the
/// file is replaced: no failure.
void FlushFolder(const fs::path& file) {
  try {
    OpenFile(file.has_parent_path() ? file.parent_path() : fs::path("."), O_RDONLY | O_DIRECTORY).Flush();
  } catch (const std::system_error&) {
  }
}

}  // namespace

bool SafeReplace(const fs::path& file, std::string_view bytes) {
  constexpr mode_t Private = 0600;
  constexpr mode_t AsUsual = 0666;
  const bool exists = fs::exists(file);
  std::optional<FileAttributes> before;
  if (exists) {
    if (fs::hard_link_count(file) > 1) return false;
    before = FileAttributes::Of(OpenFile(file, O_RDONLY | O_NONBLOCK).Number());
  }
  try {
    std::optional<NewFile> made;
    MakeBeside(made, file, exists ? Private : AsUsual);
    made->File().Write(bytes);
    if (before && !before->GiveTo(made->File().Number())) return false;
    made->Place(file);
  } catch (const std::system_error& failure) {
    if (exists && IsRefused(failure)) return false;
    throw;
  }
  FlushFolder(file);
  return true;
}

// See TakePlace.h.
#include "files/TakePlace.h"

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <map>
#include <string>
#include <system_error>

namespace fs = std::filesystem;

namespace {

constexpr size_t LargestAttribute = 1 << 16;  // of the system, also for the list of their names

std::map<std::string, std::string> ExtendedOf(int file) {
  std::map<std::string, std::string> attributes;
  std::string names(LargestAttribute, '\0');
  const ssize_t listed = flistxattr(file, names.data(), names.size());
  if (listed < 0 && errno == ENOTSUP) return attributes;
  if (listed < 0) FailStep("list the attributes");
  for (const char* name = names.data(); name < names.data() + listed; name += std::strlen(name) + 1) {
    std::string value(LargestAttribute, '\0');
    const ssize_t size = fgetxattr(file, name, value.data(), value.size());
    if (size < 0) FailStep("read an attribute");
    attributes[name] = value.substr(0, static_cast<size_t>(size));
  }
  return attributes;
}

/// Owner, access rights and extended attributes of a file.
struct FileAttributes {
  unsigned Owner = 0, Group = 0, Mode = 0;
  std::map<std::string, std::string> Extended;  // the access list is one of them

  friend bool operator==(const FileAttributes&, const FileAttributes&) = default;
};

FileAttributes AttributesOf(int file) {
  struct stat status {};
  if (fstat(file, &status) != 0) FailStep("read the owner");
  return {status.st_uid, status.st_gid, status.st_mode & 07777U, ExtendedOf(file)};
}

/// Gives them to a file as far as the system allows; true when it has all of them and no others.
bool Give(const FileAttributes& attributes, int file) {
  // Only root gives files away, but any member of a group gives a file to the group. What is refused shows in
  // the comparison at the end.
  constexpr unsigned Same = ~0U;
  [[maybe_unused]] int refused = fchown(file, attributes.Owner, Same);
  refused = fchown(file, Same, attributes.Group);
  for (const auto& [name, value] : ExtendedOf(file)) {
    if (!attributes.Extended.contains(name)) refused = fremovexattr(file, name.c_str());
  }
  for (const auto& [name, value] : attributes.Extended)
    refused = fsetxattr(file, name.c_str(), value.data(), value.size(), 0);
  refused = fchmod(file, attributes.Mode);
  return AttributesOf(file) == attributes;
}

/// A rename outlives a power cut once its folder is flushed. Not all file systems can do that, and by now the
/// file is replaced: no failure.
void FlushFolder(const fs::path& file) {
  try {
    OpenFile(file.has_parent_path() ? file.parent_path() : fs::path("."), OpenFile::For::Reading).Flush();
  } catch (const std::system_error&) {
  }
}

}  // namespace

bool TakePlace(OpenFile& made, const fs::path& path, const fs::path& file) {
  if (fs::exists(file)) {
    const FileAttributes before = AttributesOf(OpenFile(file, OpenFile::For::Reading).Number());
    if (!Give(before, made.Number())) return false;
    made.Flush();
  }
  fs::rename(path, file);
  FlushFolder(file);
  return true;
}

// See FileAttributes.h.
#include "files/FileAttributes.h"

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "files/OpenFile.h"

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

}  // namespace

FileAttributes FileAttributes::Of(int file) {
  struct stat status {};
  if (fstat(file, &status) != 0) FailStep("read the owner");
  return {status.st_uid, status.st_gid, status.st_mode & 07777U, ExtendedOf(file)};
}

bool FileAttributes::GiveTo(int file) const {
  // Only root gives files away, but any member of a group gives a file to the group. What is refused shows in
  // the comparison at the end.
  constexpr unsigned Same = ~0U;
  [[maybe_unused]] int refused = fchown(file, Owner, Same);
  refused = fchown(file, Same, Group);
  for (const auto& [name, value] : ExtendedOf(file)) {
    if (!Extended.contains(name)) refused = fremovexattr(file, name.c_str());
  }
  for (const auto& [name, value] : Extended)
    refused = fsetxattr(file, name.c_str(), value.data(), value.size(), 0);
  refused = fchmod(file, Mode);
  return Of(file) == *this;
}

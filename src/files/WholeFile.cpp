// See WholeFile.h.
#include "files/WholeFile.h"

#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "files/KeptCopy.h"
#include "files/OpenFile.h"
#include "files/PathText.h"
#include "files/SafeReplace.h"

namespace fs = std::filesystem;

namespace {

fs::path FollowLinks(fs::path path) {
  constexpr int MostLinks = 40;
  for (int links = 0; fs::is_symlink(path); ++links) {
    if (links == MostLinks) throw std::runtime_error("the link leads to itself");
    path = path.parent_path() / fs::read_symlink(path);
  }
  return path;
}

void RequireWritable(const fs::path& file) {
  if (!fs::is_regular_file(file)) throw std::runtime_error("not a regular file");
  const OpenFile opens(file, OpenFile::For::Changing);
}

/// While this runs the copy has the new content whole; it stays where a kill, or a disk that takes neither
/// the new content nor the old one, leaves the file damaged.
void WriteInPlace(const fs::path& file, std::string_view bytes) {
  const OpenFile target(file, OpenFile::For::Changing);
  if (!target.Lock(file)) throw std::runtime_error("another program is saving the file");
  KeptCopy copy(TextOf(fs::absolute(file)), bytes);
  const std::string before = target.Read();
  try {
    target.Write(bytes);
  } catch (const std::exception&) {
    try {
      target.Write(before);
    } catch (const std::exception&) {
      throw std::runtime_error("the file is damaged; what was to be saved is " + TextOf(copy.Path()));
    }
    copy.Remove();
    throw;
  }
  copy.Remove();
}

}  // namespace

namespace WholeFile {

std::string Read(const std::string& path, std::size_t most) {
  const fs::path file = PathOf(path);
  // Opening a pipe would wait, and opening a device can set it going: ask first.
  const fs::file_status status = fs::status(file);
  if (!fs::exists(status)) throw std::runtime_error("there is no such file");
  if (!fs::is_regular_file(status)) throw std::runtime_error("not a regular file");
  if (fs::file_size(file) > most) throw std::runtime_error("the file is too large");
  return OpenFile(file, OpenFile::For::Reading).Read();
}

bool IsStill(const std::string& path, std::string_view bytes) {
  std::error_code error;
  if (fs::status(PathOf(path), error).type() == fs::file_type::not_found) return true;
  try {
    return Read(path) == bytes;
  } catch (const std::runtime_error&) {
    return false;
  }
}

void Write(const std::string& path, std::string_view bytes) {
  const fs::path file = FollowLinks(PathOf(path));
  if (!file.has_filename()) throw std::runtime_error("there is no file name");
  if (fs::exists(file)) RequireWritable(file);
  if (!SafeReplace(file, bytes)) WriteInPlace(file, bytes);
}

std::string ReasonOf(const std::exception& failure) {
  const auto* const system = dynamic_cast<const std::system_error*>(&failure);
  return system == nullptr ? failure.what() : system->code().default_error_condition().message();
}

}  // namespace WholeFile

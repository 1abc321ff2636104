// See WholeFile.h.
#include "files/WholeFile.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "files/SafeReplace.h"

namespace WholeFile {

std::string Read(const std::string& path) {
  // Opening a pipe would wait, and opening a device can set it going: ask first.
  if (!std::filesystem::is_regular_file(path)) throw std::runtime_error("no regular file");
  const auto size = std::filesystem::file_size(path);
  if (size > MaxSize) throw std::runtime_error("too large");
  std::string bytes(size, '\0');
  std::ifstream file(path, std::ios::binary);
  if (!file.read(bytes.data(), static_cast<std::streamsize>(size)))
    throw std::runtime_error("not read to its end");
  return bytes;
}

void Write(const std::string& path, std::string_view bytes) {
  SafeReplace file(path);
  file.Append(bytes);
  if (file.ReadBack() != bytes) throw std::runtime_error("not read back as written");
  file.Commit();
}

}  // namespace WholeFile

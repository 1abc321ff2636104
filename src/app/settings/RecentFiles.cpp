// See RecentFiles.h.
#include "app/settings/RecentFiles.h"

#include <filesystem>
#include <sstream>
#include <stdexcept>

#include "app/settings/SettingsFile.h"
#include "files/PathText.h"
#include "files/WholeFile.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t LargestFile = 1 << 16;

std::string ListFile() {
  return SettingsFile::Beside("recent-files.txt");
}

}  // namespace

std::vector<std::string> RecentFiles::Paths() const {
  if (ListFile().empty()) return paths_;
  std::vector<std::string> paths;
  try {
    std::istringstream lines(WholeFile::Read(ListFile(), LargestFile));
    for (std::string line; paths.size() < Most && std::getline(lines, line);) {
      if (PathOf(line).is_absolute()) paths.push_back(line);
    }
  } catch (const std::runtime_error&) {
    // No list yet, or none that can be read.
  }
  return paths;
}

void RecentFiles::Add(const std::string& path) {
  const std::string whole = TextOf(fs::absolute(PathOf(path)).lexically_normal());
  std::vector<std::string> paths = Paths();
  if (whole.find('\n') != std::string::npos || (!paths.empty() && paths.front() == whole)) return;
  std::erase(paths, whole);
  paths.insert(paths.begin(), whole);
  if (paths.size() > Most) paths.pop_back();
  Keep(std::move(paths));
}

void RecentFiles::Clear() {
  Keep({});
}

void RecentFiles::Keep(std::vector<std::string> paths) {
  paths_ = std::move(paths);
  const std::string file = ListFile();
  if (file.empty()) return;
  std::string text;
  for (const std::string& path : paths_) text += path + '\n';
  std::error_code error;
  fs::create_directories(PathOf(file).parent_path(), error);
  try {
    WholeFile::Write(file, text);
  } catch (const std::runtime_error&) {
    // The list before stays.
  }
}

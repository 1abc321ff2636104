// See SettingsFile.h.
#include "app/settings/SettingsFile.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "files/PathText.h"
#include "files/UserFolders.h"
#include "files/WholeFile.h"

namespace fs = std::filesystem;

namespace SettingsFile {

namespace {

std::string path_;

using Lines = std::vector<std::string>;
using Line = Lines::iterator;

constexpr std::uintmax_t LargestFile = 1 << 20;

Lines ReadLines() {
  std::error_code error;
  Lines lines;
  const fs::path path = PathOf(path_);
  if (!fs::is_regular_file(path, error) || fs::file_size(path, error) > LargestFile) return lines;
  std::ifstream file(path, std::ios::binary);
  for (std::string line; std::getline(file, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (lines.empty() && line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
    lines.push_back(line);
  }
  return lines;
}

std::string HeadOf(std::string_view section) {
  std::string head = "[";
  head += section;
  return head += ']';
}

/// The lines of a section, its head not counted; both ends at the end of the file when there is none.
std::pair<Line, Line> FindSection(Lines& lines, std::string_view section) {
  const Line found = std::find(lines.begin(), lines.end(), HeadOf(section));
  if (found == lines.end()) return {found, found};
  const Line first = std::next(found);
  return {first,
          std::find_if(first, lines.end(), [](const std::string& line) { return line.starts_with('['); })};
}

Line FindKey(std::pair<Line, Line> section, std::string_view key) {
  const std::string start = std::string(key) + "=";
  return std::find_if(section.first, section.second,
                      [&](const std::string& line) { return line.starts_with(start); });
}

void WriteLines(const Lines& lines) {
  std::error_code error;
  fs::create_directories(PathOf(path_).parent_path(), error);
  try {
    std::string text;
    for (const std::string& line : lines) text += line + '\n';
    WholeFile::Write(path_, text);
  } catch (const std::runtime_error&) {
    // The settings before stay.
  }
}

}  // namespace

std::string DefaultPath() {
  const fs::path folder = UserFolders::Config();
  return folder.empty() ? "" : TextOf(folder / "flumewise" / "settings.ini");
}

void Use(std::string path) {
  path_ = std::move(path);
}

std::string Beside(std::string_view name) {
  return path_.empty() ? "" : TextOf(PathOf(path_).replace_filename(name));
}

std::string Get(std::string_view section, std::string_view key) {
  Lines lines = ReadLines();
  const auto range = FindSection(lines, section);
  const Line line = FindKey(range, key);
  return line == range.second ? "" : line->substr(key.size() + 1);
}

void Save(std::string_view section, const std::vector<std::pair<std::string, std::string>>& values) {
  if (path_.empty()) return;
  Lines lines = ReadLines();
  if (FindSection(lines, section).first == lines.end()) lines.push_back(HeadOf(section));
  for (const auto& [key, value] : values) {
    if (value.find_first_of("\r\n") != std::string::npos) continue;
    const std::string text = key + "=" + value;
    const auto range = FindSection(lines, section);
    const Line line = FindKey(range, key);
    if (line == range.second) {
      lines.insert(line, text);
    } else {
      *line = text;
    }
  }
  WriteLines(lines);
}

}  // namespace SettingsFile

// The projects used last, the latest first: a text file of a path a line beside the preferences.
#pragma once

#include <string>
#include <vector>

class RecentFiles {
 public:
  static constexpr int Most = 8;

  /// Absolute paths. Read anew: several programs share the list.
  std::vector<std::string> Paths() const;
  /// Puts the file at the head of the list.
  void Add(const std::string& path);
  void Clear();

 private:
  void Keep(std::vector<std::string> paths);

  std::vector<std::string> paths_;  // the list where there is no file for it
};

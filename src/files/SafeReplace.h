// Replacing a file so that at every moment, through a full disk, a kill or a power cut, its name leads to the
// whole old file or to the whole new one.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// A file written beside another one, under a hidden name of its own, that then takes its place. Each step
/// throws std::runtime_error when it fails. Until Commit has succeeded the old file is as it was, and the new
/// one goes with this object; one left behind by a kill goes when the same file is next replaced.
class SafeReplace {
 public:
  /// Begins to replace the file of that name, or to make it. A link is followed, also one to a file yet to be
  /// made. Refused: what is no regular file, a file that may not be written, one that another program is
  /// replacing.
  explicit SafeReplace(const std::string& path);
  ~SafeReplace();
  SafeReplace(const SafeReplace&) = delete;
  SafeReplace& operator=(const SafeReplace&) = delete;

  void Append(std::string_view bytes);

  /// All that the new file holds so far.
  std::string ReadBack() const;

  /// Puts the new file, with the old one's permissions, in its place.
  void Commit();

 private:
  std::filesystem::path target_;
  std::filesystem::path fresh_;
  int file_ = -1;
  bool committed_ = false;
};

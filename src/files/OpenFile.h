// A file of the system, open: locked, read, written and flushed as a whole.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

class OpenFile {
 public:
  /// As the system's open(); std::system_error when it cannot be opened. Closed with this object.
  OpenFile(const std::filesystem::path& path, int flags, unsigned mode = 0);
  OpenFile(OpenFile&& other) noexcept;
  OpenFile& operator=(OpenFile&&) = delete;
  ~OpenFile();

  int Number() const { return number_; }

  /// Locks the file until it is closed, also by a kill. False when another program holds the lock, or when
  /// `path` leads to another file by now. A file system without locks grants every lock.
  bool Lock(const std::filesystem::path& path) const;

  // std::system_error where one of these fails.
  std::string Read() const;
  /// Makes these bytes the whole content, flushes it to the disk and reads it back. The room on the disk is
  /// reserved first: on a full disk the content stays, though the file may have grown.
  void Write(std::string_view bytes) const;
  void Flush() const;

 private:
  int number_;
};

/// std::system_error of the last system call.
[[noreturn]] void FailStep(const char* step);

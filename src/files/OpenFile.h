// A file of the system, open: locked, read, written and flushed as a whole.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

class OpenFile {
 public:
  enum class For {
    Reading,
    Changing,          ///< reads too; the path must not be a link
    ChangingOrMaking,  ///< makes the file where there is none
    Making             ///< fails with std::errc::file_exists where there is one
  };
  enum class Access { Private, Usual };  ///< to a file that is made; Private: for its owner alone

  /// std::system_error when it cannot be opened. Never waits for a pipe or device. Closed with this object.
  OpenFile(const std::filesystem::path& path, For purpose, Access access = Access::Private);
  OpenFile(OpenFile&& other) noexcept;
  OpenFile& operator=(OpenFile&&) = delete;
  ~OpenFile();

  void Close();

  int Number() const { return number_; }

  /// How many names lead to the file: more than one where it has hard links.
  std::size_t Names() const;

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

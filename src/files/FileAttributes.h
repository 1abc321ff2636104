// Owner, access rights and extended attributes of a file.
#pragma once

#include <map>
#include <string>

struct FileAttributes {
  unsigned Owner = 0, Group = 0, Mode = 0;
  std::map<std::string, std::string> Extended;  ///< the access list is one of them

  friend bool operator==(const FileAttributes&, const FileAttributes&) = default;

  /// Those of an open file. std::system_error when they cannot be read.
  static FileAttributes Of(int file);

  /// Gives them to an open file as far as the system allows; true when it has all of them and no others.
  bool GiveTo(int file) const;
};

// See TakePlace.h.
#include "files/TakePlace.h"

#include <windows.h>

namespace fs = std::filesystem;

// The system has a function OpenFile.
bool TakePlace(class OpenFile& made, const fs::path& path, const fs::path& file) {
  // The system replaces files by closed ones alone. A program that opens it now, taking it for abandoned,
  // keeps the system from doing so.
  made.Close();
  if (!fs::exists(file)) {
    if (!MoveFileExW(path.c_str(), file.c_str(), MOVEFILE_WRITE_THROUGH)) FailStep("rename");
    return true;
  }
  // A link would be replaced, not the file that it leads to.
  if ((GetFileAttributesW(file.c_str()) & FILE_ATTRIBUTE_REPARSE_POINT) != 0) return false;
  fs::path before = path;
  before += ".before";
  if (ReplaceFileW(file.c_str(), path.c_str(), before.c_str(), 0, nullptr, nullptr)) {
    DeleteFileW(before.c_str());
    return true;
  }
  // It fails between its two steps too: the old file has its name back then.
  if (!fs::exists(file) && !MoveFileExW(before.c_str(), file.c_str(), MOVEFILE_WRITE_THROUGH))
    FailStep("replace");
  return false;
}

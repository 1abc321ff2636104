// Saving what a window shows as a file of another program's kind.
#pragma once

#include <functional>
#include <string>

struct ExportKind {
  std::string Title;      ///< of the file dialog
  std::string Filter;     ///< of the file dialog
  std::string Extension;  ///< of the name proposed, without "."
};

/// Asks for a file and writes `content`, which is told the extension chosen, in lower case without ".". The
/// file is there whole or not at all; a failure, an empty content included, is told in one message box.
void ExportFile(const ExportKind& kind,
                const std::function<std::string(const std::string& extension)>& content);

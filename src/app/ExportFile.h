// Export of a window's content: to files of common kinds, and charts to the clipboard too.
#pragma once

#include <functional>
#include <string>

#include "platform/XYChart.h"

struct ExportKind {
  std::string Title;      ///< of the file dialog
  std::string Filter;     ///< of the file dialog
  std::string Extension;  ///< of the name proposed, without "."
};

/// Asks for a file and writes `content`, a function of the extension chosen, in lower case without ".". The
/// file is there whole or not at all; a failure, an empty content included, is reported in one message box.
void ExportFile(const ExportKind& kind,
                const std::function<std::string(const std::string& extension)>& content);

namespace ChartPicture {

/// Empties the clipboard and puts the picture there.
void Copy(const XYChart& chart);

/// Asks under this title for a file and writes the picture as its extension says: png, svg or pdf.
void Export(const XYChart& chart, const std::string& title);

}  // namespace ChartPicture

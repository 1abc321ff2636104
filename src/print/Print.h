// Prints the problem in work: as a report, with its rating graph, or with its rating table.
#pragma once

#include <functional>

#include "app/main/frmMain.h"
#include "platform/FlexGrid.h"
#include "platform/Services.h"
#include "platform/XYChart.h"

namespace Print {

/// Pages still to be printed. What they are made from must outlive the document.
struct Document {
  std::function<void(Printer&)> Write;
  bool Landscape = false;  ///< the orientation it looks best in
};

/// Inputs and results on one page; a section whose points leave no room takes another.
Document Report(const frmMain& main);
/// The inputs and the picture of a chart.
Document Graph(const frmMain& main, const XYChart& chart);
/// A grid with its heads on every page, the columns behind the leading one of equal width. At most 20 of
/// them, else std::out_of_range.
Document Table(const frmMain& main, const FlexGrid& grid);

/// Asks for a printer and prints; nothing when the person cancels. A failure is told in a message box.
void ToPrinter(const Document& document);
/// Shows the pages on the screen.
void ToPreview(const Document& document);

}  // namespace Print

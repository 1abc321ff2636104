// Prints the current problem: as a report, with its rating graph, or with its rating table.
#pragma once

#include <functional>
#include <string>

#include "app/main/frmMain.h"
#include "platform/FlexGrid.h"
#include "platform/Services.h"
#include "platform/XYChart.h"

class PageWriter;

namespace Print {

/// Pages still to be printed. What they are made from must outlive the document.
struct Document {
  std::function<void(Printer&)> Write;
  bool Landscape = false;   ///< the orientation it looks best in
  std::string Option = {};  ///< what the printer dialog offers with it; empty: nothing
};

/// Pages behind a document for those who want them, from the top of the body of a new page on.
struct Appendix {
  std::string Option;
  std::function<void(PageWriter&)> Write;
};

/// Inputs and results on one page; a section whose points leave no room takes another. The printer dialog
/// offers the appendix, if there is one.
Document Report(const frmMain& main, const Appendix& appendix = {});
/// The inputs and the picture of a chart.
Document Graph(const frmMain& main, const XYChart& chart);
/// A grid with its heads on every page, the columns behind the leading one of equal width. At most 20 of
/// them, else std::out_of_range. `note` stands above the heads of every page; empty: none.
Document Table(const frmMain& main, const FlexGrid& grid, const std::string& note = {});

/// Asks for a printer and prints; nothing when the user cancels. A failure is reported in a message box.
void ToPrinter(const Document& document);
/// Shows the pages on the screen.
void ToPreview(const Document& document);
/// The pages as a PDF file; empty when it cannot be made.
std::string ToPdf(const Document& document);

/// Ends the last page and the document; pages that cannot be printed are reported in a message box.
void End(PageWriter& page, Printer& printer);

}  // namespace Print

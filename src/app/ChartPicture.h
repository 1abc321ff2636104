// What every window with a chart offers: its picture on the clipboard and as a file.
#pragma once

#include <string>

#include "platform/XYChart.h"

namespace ChartPicture {

/// Empties the clipboard and puts the picture there.
void Copy(const XYChart& chart);

/// Asks under this title for a file and writes the picture as its extension says: png, svg or pdf.
void Export(const XYChart& chart, const std::string& title);

}  // namespace ChartPicture

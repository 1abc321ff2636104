// What the rating graph can plot and in which steps, for its settings and its window.
#pragma once

#include "app/Declarations.h"
#include "platform/Controls.h"

/// Lists the results that can be plotted, headed by the quantity solved for, and chooses the one in force.
void ShowPlotInForce(ComboBox& list);

/// The rating column of the line chosen; the one in force when there is none.
int PlottedColumn(const ComboBox& list);

/// The range in the steps of the graph.
RatingRangeRecord InGraphSteps(RatingRangeRecord range);

/// "199 points": those of the range for which the input has a value that can be computed.
std::string GraphExtent(const RatingRangeRecord& range);

// The rating table as a text for other programs.
#pragma once

#include <string>

#include "rating/RatingSeries.h"

/// The table of this range as comma-separated values: a line of captions with units, then a line for each
/// point, its numbers unrounded in the units on display. Columns without values are left out, a result that
/// is not numeric is an empty field. Where "," is the decimal sign, ";" separates.
std::string RatingTableAsCsv(const frmMain& main, const RatingRangeRecord& range);

// Fewer points for a section of many, with as little change of its shape as can be.
#pragma once

#include "section/Survey.h"

namespace Survey {

/// The points of a section that must stay however small their part of its shape is: both ends, the lowest
/// point, the points where n changes, and the bank tops - the highest points to the left and to the right of
/// the lowest, and those at the stations that the file names.
std::vector<bool> PointsToKeep(const Section& section);

/// Takes the points out one after the other, always the one whose triangle with its two neighbours has the
/// least area (M. Visvalingam and J. D. Whyatt, 1993), until `most` are left; those to keep stay. At least as
/// many as are to be kept must be left.
void Thin(std::vector<Point>& points, const std::vector<bool>& keep, std::size_t most);

}  // namespace Survey

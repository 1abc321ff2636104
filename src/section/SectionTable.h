// The drawing of a cross-section as the numbers of a chart: its ground or wall, and the water in it.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "section/Outline.h"

namespace SectionTable {

/// A row holds x and y of a point of the outline, then x and y of a point of the water surface; a point that
/// is empty breaks its line.
using Table = std::array<std::array<std::optional<double>, 4>, 200>;
inline constexpr int OutlineX = 0, OutlineY = 1, WaterX = 2, WaterY = 3;

// The lengths of a drawing are all in feet or all in metres.

/// A rectangle (zL = zR = 0), triangle (b = 0) or trapezoid of base width b and side slopes zL and zR
/// (horizontal per vertical), drawn a fifth higher than the depth y and a hundredth off the axes.
Table Prismatic(double b, double zL, double zR, double y);

/// A pipe of diameter D as fifty chords, clockwise from its crown, with water of depth y and top width T.
Table Circular(double D, double y, double T);

/// The surveyed section of rows 1 to count (at most 101) of the points, with water up to the elevation W.
/// Each pool is a line of its own; crossings of ground and water are interpolated.
Table Irregular(const PointTable& points, int count, double W);

/// The wall that the chords of Circular stand for.
Outline::Circle PipeWall(double D);

/// The water of a drawing over its outline, as areas to fill.
std::vector<Outline::Line> Pools(const Table& table);

}  // namespace SectionTable

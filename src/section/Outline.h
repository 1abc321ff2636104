// The cross-section of a channel as lines: its ground or wall, the water in it, and its parts of one
// Manning's n. Every drawing of a section is made of these. The lengths of an outline are all in feet or all
// in metres.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "engine/ChannelState.h"

namespace Outline {

struct Point {
  double X, Y;
  bool operator==(const Point&) const = default;
};
using Line = std::vector<Point>;

/// Bed and banks of a rectangle (zL = zR = 0), triangle (b = 0) or trapezoid of base width b and side slopes
/// zL and zR (horizontal per vertical), from left to right and up to `height` above the bed. The left bank
/// begins at x = 0, the bed is y = 0.
Line Prism(double b, double zL, double zR, double height);

/// The ground of rows 1 to count (at most 101) of the points.
Line Survey(const PointTable& points, int count);

/// Where the ground from a to b, which lie at different heights, crosses the level W.
double Crossing(const Point& a, const Point& b, double W);

/// The water up to the level W over the ground, as areas to fill: of each pool the surface from its last
/// point to its first, and the ground below. Water beyond the first or last point of the ground ends there.
std::vector<Line> Pools(std::span<const Point> ground, double W);

/// The wall of a pipe.
struct Circle {
  Point Centre;
  double Radius;
};

/// A pipe of diameter D, its invert at y = 0, its left side at x = 0.
Circle Pipe(double D);

/// The water surface at the level W from wall to wall; no point at or above the crown, and none at or below
/// the invert.
Line Surface(const Circle& pipe, double W);

/// A part of a surveyed section with one Manning's n, as typed.
struct Subsection {
  double From, To;
  std::string ManningN;
  int Kind;  ///< 0, 1 ...: subsections of the same n have the same
  bool operator==(const Subsection&) const = default;
};

/// The subsections of rows 1 to count of the points, from the first point that has an n.
std::vector<Subsection> Subsections(const PointTable& points, int count);

}  // namespace Outline

// How much of its area and flow a section gains or loses when its points change.
#pragma once

#include <array>

#include "section/Survey.h"

namespace Survey {

/// Area and, at any one slope, flow of a section filled to ten levels: the tenths of the way from its lowest
/// point up to its highest. Only ratios of the same section count, so the units are those of the points and
/// the flow lacks the constant and the slope.
struct Curve {
  static constexpr std::size_t Levels = 10;
  bool HasArea = false, HasFlow = false;
  std::array<double, Levels> Area{}, Flow{};
};

/// Without area where there are fewer than two points or the stations do not ascend; without flow where the
/// first point has no n, or an n is not above 0. Subsections and clipping as in ManningIrreg.
Curve CurveOf(const std::vector<Point>& points);

/// The largest relative change over the levels, with its sign: -0.1 is a tenth less. Nothing where one of the
/// curves lacks the quantity.
struct Effect {
  std::optional<double> Area, Flow;
};
Effect EffectOf(const Curve& before, const Curve& after);

}  // namespace Survey

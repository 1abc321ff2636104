// See SectionEffect.h.
#include "section/SectionEffect.h"

#include <algorithm>
#include <cmath>

namespace Survey {

namespace {

using PerLevel = std::array<double, Curve::Levels>;

PerLevel LevelsOf(const std::vector<Point>& points) {
  const auto [low, high] = std::ranges::minmax(points, {}, [](const Point& point) { return point.Z.Value; });
  PerLevel levels{};
  for (std::size_t i = 0; i < levels.size(); ++i) {
    levels.at(i) = low.Z.Value + (high.Z.Value - low.Z.Value) * static_cast<double>(i + 1) /
                                     static_cast<double>(levels.size());
  }
  return levels;
}

bool Ascends(const std::vector<Point>& points) {
  return points.size() > 1 &&
         std::ranges::is_sorted(points, {}, [](const Point& point) { return point.X.Value; });
}

/// The wet area and perimeter of one subsection at each level.
struct Wet {
  PerLevel Area{}, Perimeter{};

  void Add(const Point& a, const Point& b, const PerLevel& levels) {
    const double width = b.X.Value - a.X.Value;
    const double low = std::min(a.Z.Value, b.Z.Value);
    const double rise = std::max(a.Z.Value, b.Z.Value) - low;
    const double length = std::sqrt(width * width + rise * rise);
    for (std::size_t i = 0; i < levels.size(); ++i) {
      const double depth = levels[i] - low;
      if (depth <= 0) continue;
      const double share = depth < rise ? depth / rise : 1;  // of the segment that is wet
      Area[i] += width * share * (depth - share * rise / 2);
      Perimeter[i] += length * share;
    }
  }

  void AddTo(Curve& curve, double n) const {
    for (std::size_t i = 0; i < Curve::Levels; ++i) {
      curve.Area[i] += Area[i];
      if (Perimeter[i] > 0) curve.Flow[i] += Area[i] * std::pow(Area[i] / Perimeter[i], 2.0 / 3.0) / n;
    }
  }
};

std::optional<double> LargestChange(const PerLevel& before, const PerLevel& after) {
  double largest = 0;
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (!(before[i] > 0)) continue;
    const double change = after[i] / before[i] - 1;
    if (std::abs(change) > std::abs(largest)) largest = change;
  }
  return std::isfinite(largest) ? std::optional(largest) : std::nullopt;
}

}  // namespace

Curve CurveOf(const std::vector<Point>& points) {
  Curve curve;
  if (!Ascends(points)) return curve;
  curve.HasArea = true;
  curve.HasFlow = points.front().N.has_value() && std::ranges::all_of(points, [](const Point& point) {
                    return !point.N || point.N->Value > 0;
                  });
  const PerLevel levels = LevelsOf(points);
  Wet wet;
  double n = 1;
  for (std::size_t i = 0; i + 1 < points.size(); ++i) {
    if (points[i].N) {
      wet.AddTo(curve, n);
      wet = {};
      n = points[i].N->Value;
    }
    wet.Add(points[i], points[i + 1], levels);
  }
  wet.AddTo(curve, n);
  return curve;
}

Effect EffectOf(const Curve& before, const Curve& after) {
  Effect effect;
  if (before.HasArea && after.HasArea) effect.Area = LargestChange(before.Area, after.Area);
  if (before.HasFlow && after.HasFlow) effect.Flow = LargestChange(before.Flow, after.Flow);
  return effect;
}

}  // namespace Survey

// See ShapeGeometry.h.
#include "desktop/main/ShapeGeometry.h"

#include <algorithm>
#include <cmath>

#include "engine/ChannelState.h"

namespace {

constexpr double SchematicSlope = 1.5;  // of a bank that is not known
constexpr double LargestDrawn = 1e12;   // what is larger is no channel to be drawn
constexpr double TrueAspect = 12;       // up to which the drawing is true to scale
constexpr double ThinnestDrawn = 1e-9;  // of its longer side

bool Drawable(const std::optional<double>& x, double least) {
  return x && *x >= least && *x <= LargestDrawn;
}

std::vector<Outline::Line> Surfaces(const std::vector<Outline::Line>& pools) {
  std::vector<Outline::Line> surfaces;
  surfaces.reserve(pools.size());
  for (const Outline::Line& pool : pools) surfaces.push_back({pool.front(), pool.back()});
  return surfaces;
}

ShapeGeometry Prismatic(const ShapeInputs& in) {
  ShapeGeometry shape;
  const bool rectangular = in.Type == ChannelTypes::Rectangular;
  const bool triangular = in.Type == ChannelTypes::Triangular;
  const bool depthKnown = Drawable(in.Depth, 1e-12);
  const bool baseKnown = Drawable(in.BaseWidth, 0);
  shape.Schematic = !depthKnown || !baseKnown || !Drawable(in.LeftSlope, 0) || !Drawable(in.RightSlope, 0);
  const auto slope = [&](const std::optional<double>& z) {
    return Drawable(z, 0) ? *z : rectangular ? 0 : SchematicSlope;
  };
  const double zL = slope(in.LeftSlope);
  const double zR = slope(in.RightSlope);
  double b = baseKnown ? *in.BaseWidth : triangular ? 0 : depthKnown ? 3 * *in.Depth : 3;
  if (shape.Schematic && !triangular && b <= 0) b = 3;
  shape.Surface = depthKnown ? *in.Depth : b > 0 ? b / 3 : 1;
  const bool critical = !shape.Schematic && Drawable(in.CriticalDepth, 1e-12);
  shape.Ground =
      Outline::Prism(b, zL, zR, critical ? std::max(shape.Surface, *in.CriticalDepth) : shape.Surface);
  shape.LeftToe = shape.Ground[1];
  shape.RightToe = shape.Ground[2];
  shape.Water = Outline::Pools(shape.Ground, shape.Surface);
  if (critical) shape.Critical = Surfaces(Outline::Pools(shape.Ground, *in.CriticalDepth));
  return shape;
}

ShapeGeometry Circular(const ShapeInputs& in) {
  ShapeGeometry shape;
  const bool diameterKnown = Drawable(in.Diameter, 1e-12);
  shape.Schematic = !diameterKnown || !Drawable(in.Depth, 1e-12);
  const double diameter = diameterKnown ? *in.Diameter : 1;
  shape.Wall = Outline::Pipe(diameter);
  // Without the diameter a depth has nothing to be compared with.
  shape.Surface = shape.Schematic ? 0.6 * diameter : std::min(*in.Depth, diameter);
  if (shape.Schematic || !in.CriticalDepth) return shape;
  const Outline::Line critical = Outline::Surface(*shape.Wall, *in.CriticalDepth);
  if (!critical.empty()) shape.Critical.push_back(critical);
  return shape;
}

ShapeGeometry Irregular(const ShapeInputs& in) {
  static const Outline::Line natural{{0, 10},   {12, 9.3}, {22, 5.4}, {30, 4.9}, {38, 1.2}, {46, 0},
                                     {56, 0.7}, {63, 4.4}, {74, 5.2}, {83, 8.6}, {95, 10}};
  ShapeGeometry shape;
  shape.Surveyed = true;
  const bool known = in.Ground.size() >= 2 && std::ranges::all_of(in.Ground, [](const Outline::Point& point) {
                       return std::abs(point.X) <= LargestDrawn && std::abs(point.Y) <= LargestDrawn;
                     });
  shape.Schematic = !known;
  shape.Ground = known ? in.Ground : natural;
  const QRectF bounds = shape.Bounds();
  const auto wet = [&](const std::optional<double>& level) { return level && *level > bounds.top(); };
  shape.Surface = !known ? 6.4 : wet(in.Depth) ? std::min(*in.Depth, bounds.bottom()) : bounds.top();
  shape.Water = Outline::Pools(shape.Ground, shape.Surface);
  if (!known) return shape;
  shape.Parts = in.Parts;
  if (wet(in.CriticalDepth) && *in.CriticalDepth <= bounds.bottom())
    shape.Critical = Surfaces(Outline::Pools(shape.Ground, *in.CriticalDepth));
  return shape;
}

/// The least factor of 1, 2, 5, 10, 20 ... that makes `aspect` readable.
double Exaggeration(double aspect) {
  for (double decade = 1;; decade *= 10) {
    for (const double step : {1, 2, 5}) {
      if (aspect <= TrueAspect * step * decade * (1 + 1e-9)) return step * decade;
    }
  }
}

}  // namespace

QRectF ShapeGeometry::Bounds() const {
  if (Wall) {
    const double r = Wall->Radius;
    return {Wall->Centre.X - r, Wall->Centre.Y - r, 2 * r, 2 * r};
  }
  const auto [left, right] = std::ranges::minmax(Ground, {}, &Outline::Point::X);
  const auto [low, high] = std::ranges::minmax(Ground, {}, &Outline::Point::Y);
  return {QPointF(left.X, low.Y), QPointF(right.X, high.Y)};
}

ShapeGeometry ShapeOf(const ShapeInputs& inputs) {
  if (inputs.Type == ChannelTypes::Circular) return Circular(inputs);
  if (inputs.Type == ChannelTypes::Irregular) return Irregular(inputs);
  return Prismatic(inputs);
}

ShapeScale FitShape(const ShapeGeometry& shape, QSizeF room) {
  const QRectF bounds = shape.Bounds();
  const double width = std::max(bounds.width(), ThinnestDrawn * bounds.height());
  const double height = std::max(bounds.height(), ThinnestDrawn * bounds.width());
  if (width <= 0 || height <= 0) return {1, 1};
  const ShapeScale factor{Exaggeration(height / width), Exaggeration(width / height)};
  double scale = std::min(room.width() / (width * factor.Across), room.height() / (height * factor.Upwards));
  if (!shape.Schematic) scale = std::exp2(std::floor(2 * std::log2(scale)) / 2);
  return {scale * factor.Across, scale * factor.Upwards};
}

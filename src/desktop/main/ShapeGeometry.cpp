// See ShapeGeometry.h.
#include "desktop/main/ShapeGeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "engine/ChannelState.h"
#include "section/SectionTable.h"

namespace {

constexpr double Freeboard = 1.25;      // height of the banks over the depth
constexpr double SchematicSlope = 1.5;  // of a bank that is not known
constexpr double LeastAspect = 0.3;     // of a drawing's short side to its long one
constexpr double LargestDrawn = 1e12;   // what is larger is no channel to be drawn
constexpr int PipeSides = 180;

bool Drawable(const std::optional<double>& x, double least) {
  return x && *x >= least && *x <= LargestDrawn;
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
  const double y = depthKnown ? *in.Depth : b > 0 ? b / 3 : 1;
  const double top = y * Freeboard;
  shape.LeftToe = {0, 0};
  shape.RightToe = {b, 0};
  shape.Surface = y;
  shape.Ground << QPointF(-zL * top, top) << shape.LeftToe << shape.RightToe << QPointF(b + zR * top, top);
  shape.Water << (QPolygonF() << QPointF(-zL * y, y) << shape.LeftToe << shape.RightToe
                              << QPointF(b + zR * y, y));
  return shape;
}

/// The circle from the angle `from` to `to`, measured at its centre from the invert.
QPolygonF Arc(double radius, double from, double to) {
  QPolygonF arc;
  for (int i = 0; i <= PipeSides; ++i) {
    const double angle = from + (to - from) * i / PipeSides;
    arc << QPointF(radius * std::sin(angle), radius - radius * std::cos(angle));
  }
  return arc;
}

ShapeGeometry Circular(const ShapeInputs& in) {
  ShapeGeometry shape;
  shape.Pipe = true;
  const bool diameterKnown = Drawable(in.Diameter, 1e-12);
  shape.Schematic = !diameterKnown || !Drawable(in.Depth, 1e-12);
  const double diameter = diameterKnown ? *in.Diameter : 1;
  // Without the diameter a depth has nothing to be compared with.
  shape.Surface = shape.Schematic ? 0.6 * diameter : std::min(*in.Depth, diameter);
  const double radius = diameter / 2;
  const double half = std::acos(std::clamp(1 - shape.Surface / radius, -1.0, 1.0));
  shape.Ground = Arc(radius, -std::numbers::pi, std::numbers::pi);
  shape.Water << Arc(radius, -half, half);
  return shape;
}

QList<QPolygonF> Pools(const QPolygonF& ground, double level) {
  std::vector<SectionTable::Point> line;
  for (const QPointF& point : ground) line.push_back({point.x(), point.y()});
  QList<QPolygonF> pools;
  for (const auto& pool : SectionTable::Pools(line, level)) {
    QPolygonF& polygon = pools.emplace_back();
    for (const SectionTable::Point& point : pool) polygon << QPointF(point.X, point.Y);
  }
  return pools;
}

ShapeGeometry Irregular(const ShapeInputs& in) {
  static const QPolygonF natural({{0, 10},
                                  {12, 9.3},
                                  {22, 5.4},
                                  {30, 4.9},
                                  {38, 1.2},
                                  {46, 0},
                                  {56, 0.7},
                                  {63, 4.4},
                                  {74, 5.2},
                                  {83, 8.6},
                                  {95, 10}});
  ShapeGeometry shape;
  const bool known = in.Points.size() >= 2 && std::ranges::all_of(in.Points, [](const QPointF& point) {
                       return std::abs(point.x()) <= LargestDrawn && std::abs(point.y()) <= LargestDrawn;
                     });
  shape.Schematic = !known;
  shape.Ground = known ? QPolygonF(QList<QPointF>(in.Points.begin(), in.Points.end())) : natural;
  const QRectF bounds = shape.Bounds();
  shape.Bottom = bounds.top();
  const bool wet = in.Depth && *in.Depth > bounds.top() && *in.Depth <= LargestDrawn;
  shape.Surface = !known ? 6.4 : wet ? std::min(*in.Depth, bounds.bottom()) : bounds.top();
  shape.Water = Pools(shape.Ground, shape.Surface);
  return shape;
}

}  // namespace

ShapeGeometry ShapeOf(const ShapeInputs& inputs) {
  if (inputs.Type == ChannelTypes::Circular) return Circular(inputs);
  if (inputs.Type == ChannelTypes::Irregular) return Irregular(inputs);
  return Prismatic(inputs);
}

ShapeScale FitShape(const ShapeGeometry& shape, QSizeF room, double readable) {
  const QRectF bounds = shape.Bounds();
  const double width = std::max(bounds.width(), 1e-9 * bounds.height());
  const double height = std::max(bounds.height(), 1e-9 * bounds.width());
  if (width <= 0 || height <= 0) return {1, 1};
  const double even = std::min(room.width() / width, room.height() / height);
  if (shape.Pipe) return {even, even};
  return {std::max(even, std::min({room.width(), LeastAspect * height * even, readable}) / width),
          std::max(even, std::min({room.height(), LeastAspect * width * even, readable}) / height)};
}

// The cross-section of a channel as lines and areas, in the channel's own units: x to the right, y upwards.
#pragma once

#include <QPolygonF>
#include <optional>
#include <string>
#include <vector>

/// What is known of a channel; lengths in one unit. What is absent is drawn as usual for the type.
struct ShapeInputs {
  std::string Type;
  std::optional<double> Depth;  ///< y, or the water-surface elevation of an irregular section
  std::optional<double> BaseWidth, LeftSlope, RightSlope, Diameter;
  std::vector<QPointF> Points;  ///< station, elevation

  bool operator==(const ShapeInputs&) const = default;
};

struct ShapeGeometry {
  QPolygonF Ground;  ///< the bed and its banks from left to right; a pipe's wall, closed
  QList<QPolygonF> Water;
  QPointF LeftToe, RightToe;  ///< ends of the base width
  double Bottom = 0;          ///< lowest point
  double Surface = 0;         ///< of the water
  bool Pipe = false;
  bool Schematic = false;  ///< something was not known: the proportions tell nothing

  QRectF Bounds() const { return Ground.boundingRect(); }
};

ShapeGeometry ShapeOf(const ShapeInputs& inputs);

/// Pixels per unit across and upwards. They are equal, except where the shape would become too flat or too
/// thin to be read: then the smaller direction is exaggerated. A pipe stays round.
struct ShapeScale {
  double Across, Upwards;
};
ShapeScale FitShape(const ShapeGeometry& shape, QSizeF room, double readable);

// The cross-section of the current channel as it is drawn beside its inputs, in the channel's own units: x to
// the right, y upwards. What nobody has typed yet is drawn as usual for the type.
#pragma once

#include <QRectF>
#include <optional>
#include <string>
#include <vector>

#include "section/Outline.h"

/// What is known of a channel; lengths in one unit.
struct ShapeInputs {
  std::string Type;
  std::optional<double> Depth;  ///< y, or the water-surface elevation of an irregular section
  std::optional<double> BaseWidth, LeftSlope, RightSlope, Diameter;
  Outline::Line Ground;                      ///< of an irregular section
  std::optional<double> CriticalDepth{};     ///< measured like the depth
  std::vector<Outline::Subsection> Parts{};  ///< of an irregular section
  int UnitSystem = 0;                        ///< of the lengths

  bool operator==(const ShapeInputs&) const = default;
};

struct ShapeGeometry {
  Outline::Line Ground;                 ///< bed and banks from left to right, as high as they are known
  std::optional<Outline::Circle> Wall;  ///< of a pipe, which has no ground
  double Surface = 0;                   ///< of the water
  std::vector<Outline::Line> Water;     ///< pools; a pipe's water is what its wall holds up to the surface
  std::vector<Outline::Line> Critical;  ///< where critical depth is reached, each from bank to bank
  std::vector<Outline::Subsection> Parts;
  Outline::Point LeftToe{}, RightToe{};  ///< ends of the base width
  bool Surveyed = false;
  bool Schematic = false;  ///< something was not known: the proportions mean nothing

  QRectF Bounds() const;
};

ShapeGeometry ShapeOf(const ShapeInputs& inputs);

/// Pixels per unit across and upwards. They are equal up to 12 times as wide as deep, or as deep as wide;
/// beyond that the smaller direction is exaggerated, by 2, 5, 10, 20 ... A pipe stays round.
struct ShapeScale {
  double Across, Upwards;
  bool operator==(const ShapeScale&) const = default;
};

/// The scale at which the shape fills the room. A shape whose measures are known takes steps of about 1.4, so
/// that it does not change with each of their digits.
ShapeScale FitShape(const ShapeGeometry& shape, QSizeF room);

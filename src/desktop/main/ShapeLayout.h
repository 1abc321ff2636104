// Where everything of a channel's drawing goes on its canvas, in pixels: lines, water, dimension arrows and
// labels that keep clear of each other.
#pragma once

#include <QFontMetricsF>
#include <QLineF>
#include <QLinearGradient>
#include <QPainterPath>
#include <QPolygonF>
#include <optional>

#include "desktop/kit/Symbol.h"
#include "desktop/main/ShapeGeometry.h"

/// A symbol of a box, with the text of the box behind it when that is a number: "z_L", " = 2".
struct ShapeLabel {
  QString Symbol;
  QString Value;
  QRectF Place = {};

  QString Plain() const { return SymbolLetters(Symbol) + Value; }
};

/// The labels of a drawing; one with an empty symbol is not drawn.
struct ShapeLabels {
  ShapeLabel Depth, BaseWidth, LeftSlope, RightSlope, Diameter, Roughness, Critical;
};

struct ShapeLayout {
  /// Absent where the proportions mean nothing.
  std::optional<ShapeScale> Scale;
  QPolygonF Ground;  ///< empty for a pipe
  QRectF Wall;       ///< of a pipe, which is drawn as an ellipse
  QPolygonF Earth;   ///< the cut ground around the channel; a pipe has none
  /// Black over the ground that is known, fading to nothing where nobody has said how it goes on.
  QLinearGradient Known;
  QPainterPath Water;
  QList<QLineF> Surfaces;  ///< of the pools
  QPolygonF SurfaceMark;   ///< the triangle that means a free water surface
  QList<QLineF> SurfaceRipples;
  QList<QLineF> Critical;    ///< the level of critical flow
  QList<QLineF> Arrows;      ///< dimension lines with arrows at both ends
  QList<QLineF> Extensions;  ///< thin lines from the shape to its dimension lines, and the legs of slopes
  struct Part {
    int Kind;    ///< equal for parts of the same Manning's n
    QRectF Bar;  ///< over the part's width, below the ground
    QPolygonF Ground;
  };
  QList<Part> Parts;  ///< of a section with more than one
  QList<ShapeLabel> Labels;
  QString Note;  ///< how the proportions are to be read; empty when they are true
  QRectF NotePlace;
};

/// Keeps the scale that is held while the shape fits the canvas with it.
ShapeLayout LayOutShape(const ShapeGeometry& shape, const ShapeLabels& labels, const QRectF& canvas,
                        const QFontMetricsF& font, const std::optional<ShapeScale>& held = std::nullopt);

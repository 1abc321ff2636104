// Where everything of a channel's drawing goes on its canvas, in pixels: lines, water, dimension arrows and
// labels that keep clear of each other.
#pragma once

#include <QFontMetricsF>
#include <QLineF>

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
  ShapeLabel Depth, BaseWidth, LeftSlope, RightSlope, Diameter, Roughness;
};

struct ShapeLayout {
  QPolygonF Ground;
  QPolygonF Earth;  ///< the cut ground around the channel; a pipe has none
  QList<QPolygonF> Water;
  QLineF SurfaceMark;        ///< of the sign of the water surface, its middle
  QList<QLineF> Arrows;      ///< dimension lines with arrows at both ends
  QList<QLineF> Extensions;  ///< thin lines from the shape to its dimension lines, and the legs of slopes
  QList<ShapeLabel> Labels;
  QString Note;  ///< how the proportions are to be read; empty when they are true
  QRectF NotePlace;
};

ShapeLayout LayOutShape(const ShapeGeometry& shape, const ShapeLabels& labels, const QRectF& canvas,
                        const QFontMetricsF& font);

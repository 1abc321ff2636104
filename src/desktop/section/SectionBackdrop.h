// What the drawing of a section shows besides its lines: ground, water, and the parts of one Manning's n.
#pragma once

#include <qcustomplot.h>

#include "section/frmSection.h"

class ChartPlot;

class SectionBackdrop : public QCPLayerable {
 public:
  /// Becomes part of the plot, behind the lines, the first of which is the outline of the section.
  SectionBackdrop(ChartPlot& plot, const SectionDrawing& drawing);

 protected:
  void draw(QCPPainter* painter) override;
  void applyDefaultAntialiasingHint(QCPPainter* painter) const override;

 private:
  QPointF PixelOf(double x, double y) const;
  QPolygonF Ground() const;
  void DrawEarth(QCPPainter& painter) const;
  void DrawWater(QCPPainter& painter) const;
  void DrawSubsections(QCPPainter& painter) const;
  void DrawNames(QCPPainter& painter) const;
  int BarHeight() const;

  const ChartPlot& plot_;
  const SectionDrawing drawing_;
};

// What the drawing of a section shows besides its lines: ground, water, and the parts of one Manning's n.
#pragma once

#include <qcustomplot.h>

#include <functional>

#include "section/frmSection.h"

class ChartPlot;

class SectionBackdrop : public QCPLayerable {
 public:
  /// Becomes part of the plot, behind the lines, the first of which is the outline of the section. Each
  /// drawing shows what `now` returns then.
  SectionBackdrop(ChartPlot& plot, std::function<SectionDrawing()> now);

 protected:
  void draw(QCPPainter* painter) override;
  void applyDefaultAntialiasingHint(QCPPainter* painter) const override;

 private:
  void Update(ChartPlot& plot);
  QPointF PixelOf(double x, double y) const;
  QPolygonF Ground() const;
  void DrawEarth(QCPPainter& painter) const;
  void DrawWater(QCPPainter& painter) const;
  void DrawSubsections(QCPPainter& painter) const;
  void DrawNames(QCPPainter& painter) const;
  int BarHeight() const;

  const ChartPlot& plot_;
  std::function<SectionDrawing()> now_;
  SectionDrawing drawing_;
  int plainMargin_;  // above a drawing without names of subsections
};

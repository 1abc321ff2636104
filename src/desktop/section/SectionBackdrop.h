// What the drawing of a section shows besides its lines: ground, water, and the stretches of one Manning's n.
#pragma once

#include <qcustomplot.h>

#include <vector>

#include "section/SectionTable.h"

class ChartPlot;

class SectionBackdrop : public QCPLayerable {
 public:
  struct Content {
    std::vector<std::vector<SectionTable::Point>> Pools;
    std::vector<SectionTable::Stretch> Stretches;
    bool IsPipe = false;  ///< nothing is known of the ground around it
  };
  /// Becomes part of the plot, behind the lines, the first of which is the outline of the section.
  SectionBackdrop(ChartPlot& plot, Content content);

 protected:
  void draw(QCPPainter* painter) override;
  void applyDefaultAntialiasingHint(QCPPainter* painter) const override;

 private:
  QPointF PixelOf(double x, double y) const;
  QPolygonF Outline() const;
  void DrawEarth(QCPPainter& painter) const;
  void DrawWater(QCPPainter& painter) const;
  void DrawStretches(QCPPainter& painter) const;
  void DrawNames(QCPPainter& painter) const;
  /// Stretches of equal n have one colour.
  QColor ColourOf(const SectionTable::Stretch& stretch) const;
  int BarHeight() const;

  const ChartPlot& plot_;
  const Content content_;
};

// Draws the points of an XYChart with axes, ticks and grid: the one painter for screen, clipboard, files and
// paper.
#pragma once

#include <qcustomplot.h>

#include <map>
#include <optional>
#include <vector>

#include "platform/XYChart.h"

class ChartPlot : public QCustomPlot {
 public:
  ChartPlot(const XYChart& chart, QWidget* parent);

  /// Takes the points and titles of the chart as they are now and shows them whole.
  void Load();
  /// Colours from here on; the fonts are the plot's own.
  void SetColours(const QPalette& colours);
  /// Values that are not above 0 have no place on logarithmic axes; Points() leaves them out.
  void SetLogarithmic(bool logarithmic);
  bool IsLogarithmic() const { return xAxis->scaleType() == QCPAxis::stLogarithmic; }
  void ShowWhole();
  /// Zooms in by `steps`, out when they are negative, around a place in pixels. Dragging, the wheel and a
  /// double click, which shows the whole, behave as usual.
  void Zoom(double steps, QPointF around);
  /// Lays out every part on `size` pixels.
  void LayOut(QSize size);
  /// The part that another plot of the same chart shows.
  void ShowAs(const ChartPlot& other);
  /// Names the lines of a section in words below the axes: its outline, which is drawn as ground, and its
  /// water.
  void NameLines(const QStringList& names);
  /// Of a line of the chart's rows, by the number of its pair of columns, or behind them of a curve beside
  /// them; empty for a line without a name.
  QString LineName(int line) const;
  /// The points of a line, which breaks where there is none.
  using Breaking = std::vector<std::optional<QPointF>>;
  /// Draws these in the place of a line of the chart, by the number of its pair of columns.
  void ReplaceLine(int pair, Breaking points);
  /// Draws a line of the chart as the circle of which it has points; they stay what is read off.
  void DrawAsCircle(int pair, const QPointF& centre, double radius);
  /// Says in words, below the axes, what the marked spans are.
  void ShowLegend(const QString& marked);

  /// The points drawn, line after line, each in the order of the chart's rows.
  const QList<QPointF>& Points() const { return points_; }
  /// The line of one of them.
  int LineOf(qsizetype point) const { return lineOf_[point]; }
  Breaking PointsOf(int line) const;
  /// Where a text of this size hides the fewest points, at one of the corners of a pixel, `gap` away from it.
  QPointF PlaceBeside(QPointF pixel, QSizeF size, double gap) const;
  const QPalette& Colours() const { return colours_; }

  static QPen MarkedPen(const QPalette& palette, double em);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  struct Line {
    QCPCurve* Curve;
    QCPCurve* Isolated;  ///< points without a neighbour, which no line would show
  };
  /// The name of a line at its last point.
  struct EndName {
    QCPItemText* Text;
    int Line;
  };
  struct Circle {
    QPointF Centre;
    double Radius;
  };
  class CircleCurve;
  template <class Curve = QCPCurve, class... Shape>
  Curve* AddCurve(Shape... shape);
  int RowLines() const { return chart_.Cols() / 2; }
  /// The curve beside the rows that this line is; null for a line of the rows.
  const XYChart::Curve* CurveOf(int line) const;
  void LoadLine(int line);
  void AddLegend();
  void LoadMarked(int line, const std::vector<ChartSpan>& spans);
  /// Nothing for a point that the axes cannot show.
  std::optional<QPointF> Drawable(const std::optional<double>& x, const std::optional<double>& y) const;
  // Heading, names at the ends and the present point (ChartPlotNotes.cpp).
  void LoadNotes();
  void LoadHeading();
  QCPItemText* AddText(const QString& text);
  void RestyleNotes();
  void FitHeading();
  void PlaceNotes();
  void PlaceEndNames();
  void PlacePresent();
  QSizeF SizeOf(const QCPItemText& text) const;
  QPointF LeastHiding(const std::vector<QPointF>& places, QSizeF size) const;
  QRectF Room() const;
  double Hidden(const QRectF& place) const;
  QPointF Pixel(const QPointF& point) const;
  QColor LineColour(int line) const;
  QCPRange Whole(bool across) const;
  void Restyle();
  /// Where one scale serves both axes, widens the range of the one that has room to spare.
  void Equalize();

  const XYChart& chart_;
  QPalette colours_;
  std::vector<Line> lines_;
  QCPCurve* marked_ = nullptr;
  QList<QPointF> points_;
  QList<int> lineOf_;
  std::vector<QCPTextElement*> heading_;
  std::vector<EndName> endNames_;
  QCPItemTracer* present_ = nullptr;
  QCPItemText* presentText_ = nullptr;
  QCPItemLine* leader_ = nullptr;
  QList<QRectF> taken_;  // by the names at the ends
  QStringList names_;
  std::map<int, Breaking> replaced_;
  std::map<int, Circle> circles_;
  bool whole_ = true;  // neither zoomed nor dragged
  double zoomed_ = 0;  // steps
};

// The widget of a chart: its drawing, of which the points are read off by mouse and keys, and its pictures
// for other programs.
#pragma once

#include <QList>
#include <QRectF>
#include <QWidget>
#include <functional>
#include <string>

#include "platform/XYChart.h"

class ChartPlot;
class EmptyNote;
class QAction;
class QCPItemText;
class QCPItemTracer;
class QCPPainter;

class ChartWidget : public QWidget {
 public:
  ChartWidget(XYChart& chart, QWidget* parent);

  /// Says in words why the chart has no points, and what its marked spans are.
  void SetTexts(const QString& whyEmpty, const QString& marked);
  /// Adds to the drawing, on the screen and in every picture of it.
  void Style(std::function<void(ChartPlot&)> style);
  /// A sample of a marked span, shown before these words.
  static QWidget* MarkedSample(QWidget* parent);

  /// Commands of the view itself, for a menu: logarithmic axes; then larger, smaller and whole.
  QAction* LogarithmicAction() const { return logarithmic_; }
  const QList<QAction*>& ZoomActions() const { return zooms_; }

  /// The widget that shows the chart; null when none does.
  static const ChartWidget* Of(const XYChart& chart);

  /// Draws the part that is shown over `size` pixels, in the colours of a light desktop.
  void Paint(QCPPainter& painter, QSize size, const QFont& font) const;

  ChartPlot& Plot() const { return *plot_; }
  const XYChart& Chart() const { return chart_; }
  /// The table of the chart: its rows and, behind their columns, the curves beside them.
  int RowCount() const;
  int ColumnCount() const;
  /// A column and a value in it as texts; the latter is empty where a line breaks.
  QString ColumnTitle(int column) const;
  QString PointText(int row, int column) const;
  /// The point read off, in words; empty when there is none.
  QString Reading() const;

 protected:
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* plot, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void AddReader();
  void AddActions();
  QAction* AddCommand(const QString& text, const QKeySequence& key, const std::function<void()>& run);
  void Load();
  void Restyle();
  void Describe();
  QString Content() const;
  bool HasMarked() const;
  void Read(qsizetype index);
  void ReadNear(QPointF place);
  void BringIntoView(QPointF point);
  void PlaceReader();
  QPointF Place(const QPointF& point) const;
  void Copy() const;
  std::string Picture(const std::string& extension) const;

  XYChart& chart_;
  ChartPlot* plot_;
  EmptyNote* note_;
  QCPItemTracer* cross_ = nullptr;
  QCPItemTracer* ring_ = nullptr;
  QCPItemText* tag_ = nullptr;
  QAction* logarithmic_ = nullptr;
  QList<QAction*> zooms_;
  std::function<void(ChartPlot&)> style_;
  QString whyEmpty_, marked_;
  QRectF extent_;        // of the points
  qsizetype read_ = -1;  // the point read off
};

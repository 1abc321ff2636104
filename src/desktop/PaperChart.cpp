// See PaperChart.h.
#include "desktop/PaperChart.h"

#include <qcustomplot.h>

#include <limits>

#include "desktop/Text.h"

namespace {

constexpr double TwipsOfPixel = 15;  // laid out as on a screen of 96 dots to the inch
constexpr int TextPixels = 12;

/// Adds these rows of the pair of columns that begins with `column`.
void AddCurve(QCustomPlot& plot, const XYChart& chart, std::size_t column, ChartStretch rows,
              const QPen& pen) {
  auto* const curve = new QCPCurve(plot.xAxis, plot.yAxis);  // the plot owns it
  for (int row = rows.First; row <= rows.Last; ++row) {
    const XYChart::Row& values = chart.Rows()[static_cast<std::size_t>(row)];
    constexpr double Gap = std::numeric_limits<double>::quiet_NaN();
    curve->addData(values[column].value_or(Gap), values[column + 1].value_or(Gap));
  }
  curve->setPen(pen);
}

void AddCurves(QCustomPlot& plot, const XYChart& chart) {
  const int lastRow = static_cast<int>(chart.Rows().size()) - 1;
  for (std::size_t column = 0; column + 1 < static_cast<std::size_t>(chart.Cols()); column += 2) {
    AddCurve(plot, chart, column, {0, lastRow}, QPen(QColor(0x1f, 0x5f, 0xa8), 1.5));
  }
  for (const ChartStretch& stretch : chart.Marked.Get()) {
    AddCurve(plot, chart, 0, stretch, QPen(QColor(0xc0, 0x50, 0x20), 3, Qt::DotLine));
  }
}

}  // namespace

void PaintChart(QCPPainter& painter, const XYChart& chart, const QRectF& area) {
  QFont font;
  font.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
  font.setPixelSize(TextPixels);
  QCustomPlot plot;
  AddCurves(plot, chart);
  plot.rescaleAxes();
  plot.axisRect()->setupFullAxesBox();
  plot.xAxis->setLabel(ToQt(chart.XTitle.Get()));
  plot.yAxis->setLabel(ToQt(chart.YTitle.Get()));
  for (QCPAxis* const axis : {plot.xAxis, plot.yAxis}) {
    axis->setLabelFont(font);
    axis->setTickLabelFont(font);
  }
  painter.save();
  painter.translate(area.topLeft());
  painter.scale(TwipsOfPixel, TwipsOfPixel);
  painter.setMode(QCPPainter::pmVectorized);
  painter.setMode(QCPPainter::pmNonCosmetic);
  plot.toPainter(&painter, static_cast<int>(area.width() / TwipsOfPixel),
                 static_cast<int>(area.height() / TwipsOfPixel));
  painter.restore();
}

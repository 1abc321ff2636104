// See PaperChart.h.
#include "desktop/PaperChart.h"

#include "desktop/Appearance.h"
#include "desktop/ChartPlot.h"

namespace {

constexpr double TwipsOfPixel = 15;  // laid out as on a screen of 96 dots to the inch
constexpr int TextPixels = 12;

}  // namespace

void PaintChart(QCPPainter& painter, const XYChart& chart, const QRectF& area) {
  QFont font;
  font.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
  font.setPixelSize(TextPixels);
  ChartPlot plot(chart, nullptr);
  plot.setFont(font);
  plot.SetColours(Appearance::Paper());
  const QSize size = (area.size() / TwipsOfPixel).toSize();
  plot.LayOut(size);
  plot.ShowWhole();
  painter.save();
  painter.translate(area.topLeft());
  painter.scale(TwipsOfPixel, TwipsOfPixel);
  painter.setMode(QCPPainter::pmVectorized);
  painter.setMode(QCPPainter::pmNonCosmetic);
  plot.toPainter(&painter, size.width(), size.height());
  painter.restore();
}

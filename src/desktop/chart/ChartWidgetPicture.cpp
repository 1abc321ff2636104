// The pictures of a chart for paper, clipboard and files. See ChartWidget.h.
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QMimeData>
#include <QPageSize>
#include <QPdfWriter>
#include <QScreen>
#include <QSvgGenerator>

#include "app/Declarations.h"
#include "desktop/chart/ChartPlot.h"
#include "desktop/chart/ChartWidget.h"
#include "desktop/kit/Appearance.h"

namespace {

constexpr int DotsPerPixel = 2;  // of a picture made of dots, so that it stays sharp in print
constexpr double PointsPerInch = 72;

void PaintOn(QPaintDevice& device, const ChartWidget& chart) {
  QCPPainter painter(&device);
  chart.Paint(painter, chart.Plot().size(), chart.font());
}

QImage Dots(const ChartWidget& chart) {
  QImage image(chart.Plot().size() * DotsPerPixel, QImage::Format_RGB32);
  image.setDevicePixelRatio(DotsPerPixel);
  PaintOn(image, chart);
  return image;
}

/// As on the screen: the same text beside the same lines.
int DotsPerInch() {
  return qRound(QGuiApplication::primaryScreen()->logicalDotsPerInch());
}

void WritePng(const ChartWidget& chart, QBuffer& file) {
  Dots(chart).save(&file, "png");
}

void WriteSvg(const ChartWidget& chart, QBuffer& file) {
  QSvgGenerator drawing;
  drawing.setOutputDevice(&file);
  drawing.setResolution(DotsPerInch());
  drawing.setSize(chart.Plot().size());
  drawing.setViewBox(QRect({}, chart.Plot().size()));
  drawing.setTitle(QLatin1String(Declarations::AppTitle));
  PaintOn(drawing, chart);
}

void WritePdf(const ChartWidget& chart, QBuffer& file) {
  QPdfWriter document(&file);
  document.setResolution(DotsPerInch());
  document.setPageSize(
      QPageSize(QSizeF(chart.Plot().size()) * PointsPerInch / DotsPerInch(), QPageSize::Point));
  document.setPageMargins({});
  document.setCreator(QLatin1String(Declarations::AppTitle));
  PaintOn(document, chart);
}

struct Format {
  const char* Extension;
  const char* MimeType;
  void (*Write)(const ChartWidget& chart, QBuffer& file);
};
constexpr Format Formats[] = {
    {"png", "image/png", WritePng}, {"svg", "image/svg+xml", WriteSvg}, {"pdf", "application/pdf", WritePdf}};

QByteArray Written(const Format& format, const ChartWidget& chart) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  format.Write(chart, file);
  return file.data();
}

}  // namespace

const ChartWidget* ChartWidget::Of(const XYChart& chart) {
  for (const QWidget* const widget : QApplication::allWidgets()) {
    const auto* const shown = dynamic_cast<const ChartWidget*>(widget);
    if (shown != nullptr && &shown->chart_ == &chart) return shown;
  }
  return nullptr;
}

void ChartWidget::Paint(QCPPainter& painter, QSize size, const QFont& font) const {
  ChartPlot paper(chart_, nullptr);
  paper.setFont(font);
  paper.SetColours(Appearance::Paper());
  if (style_) {
    style_(paper);
    paper.Load();
  }
  paper.LayOut(size);
  paper.ShowAs(*plot_);
  if (HasMarked()) paper.ShowLegend(marked_);
  paper.LayOut(size);
  painter.setModes(QCPPainter::PainterModes(QCPPainter::pmNoCaching) | QCPPainter::pmVectorized);
  paper.toPainter(&painter, size.width(), size.height());
}

std::string ChartWidget::Picture(const std::string& extension) const {
  for (const Format& format : Formats) {
    if (extension == format.Extension) return Written(format, *this).toStdString();
  }
  return {};
}

void ChartWidget::Copy() const {
  auto* const picture = new QMimeData;
  picture->setImageData(Dots(*this));
  for (const Format& format : Formats)
    picture->setData(QLatin1String(format.MimeType), Written(format, *this));
  QGuiApplication::clipboard()->setMimeData(picture);
}

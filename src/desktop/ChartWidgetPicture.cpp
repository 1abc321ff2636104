// The pictures of a chart for paper, clipboard and files. See ChartWidget.h.
#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPageSize>
#include <QPdfWriter>
#include <QScreen>
#include <QSvgGenerator>

#include "app/Declarations.h"
#include "desktop/Appearance.h"
#include "desktop/ChartPlot.h"
#include "desktop/ChartWidget.h"

namespace {

constexpr int DotsPerPixel = 2;  // of a picture made of dots, so that it stays sharp in print
constexpr double PointsPerInch = 72;

using Paint = std::function<void(QPaintDevice&, QSize)>;

QImage Dots(const Paint& paint, QSize size) {
  QImage image(size * DotsPerPixel, QImage::Format_RGB32);
  image.setDevicePixelRatio(DotsPerPixel);
  paint(image, size);
  return image;
}

/// As on the screen: the same text beside the same lines.
int DotsPerInch() {
  return qRound(QGuiApplication::primaryScreen()->logicalDotsPerInch());
}

void WritePng(const Paint& paint, QSize size, QBuffer& file) {
  Dots(paint, size).save(&file, "png");
}

void WriteSvg(const Paint& paint, QSize size, QBuffer& file) {
  QSvgGenerator drawing;
  drawing.setOutputDevice(&file);
  drawing.setResolution(DotsPerInch());
  drawing.setSize(size);
  drawing.setViewBox(QRect({}, size));
  drawing.setTitle(QLatin1String(Declarations::AppTitle));
  paint(drawing, size);
}

void WritePdf(const Paint& paint, QSize size, QBuffer& file) {
  QPdfWriter document(&file);
  document.setResolution(DotsPerInch());
  document.setPageSize(QPageSize(QSizeF(size) * PointsPerInch / DotsPerInch(), QPageSize::Point));
  document.setPageMargins({});
  document.setCreator(QLatin1String(Declarations::AppTitle));
  paint(document, size);
}

struct Format {
  const char* Extension;
  const char* MimeType;
  void (*Write)(const Paint& paint, QSize size, QBuffer& file);
};
constexpr Format Formats[] = {
    {"png", "image/png", WritePng}, {"svg", "image/svg+xml", WriteSvg}, {"pdf", "application/pdf", WritePdf}};

QByteArray Written(const Format& format, const Paint& paint, QSize size) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  format.Write(paint, size, file);
  return file.data();
}

}  // namespace

void ChartWidget::PaintOn(QPaintDevice& device, QSize size) const {
  ChartPlot paper(chart_, nullptr);
  paper.setFont(font());
  paper.SetColours(Appearance::Paper());
  if (dress_) {
    dress_(paper);
    paper.Load();
  }
  paper.LayOut(size);
  paper.ShowAs(*plot_);
  if (!chart_.Marked.Get().empty()) paper.ShowLegend(marked_);
  paper.LayOut(size);
  QCPPainter painter(&device);
  painter.setModes(QCPPainter::PainterModes(QCPPainter::pmNoCaching) | QCPPainter::pmVectorized);
  paper.toPainter(&painter, size.width(), size.height());
}

std::string ChartWidget::Picture(const std::string& extension) const {
  for (const Format& format : Formats) {
    if (extension != format.Extension) continue;
    return Written(
               format, [this](QPaintDevice& device, QSize size) { PaintOn(device, size); }, plot_->size())
        .toStdString();
  }
  return {};
}

void ChartWidget::Copy() const {
  const Paint paint = [this](QPaintDevice& device, QSize size) { PaintOn(device, size); };
  auto* const picture = new QMimeData;
  picture->setImageData(Dots(paint, plot_->size()));
  for (const Format& format : Formats) {
    picture->setData(QLatin1String(format.MimeType), Written(format, paint, plot_->size()));
  }
  QGuiApplication::clipboard()->setMimeData(picture);
}

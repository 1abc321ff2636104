// See QtPrinter.h.
#include "desktop/QtPrinter.h"

#include <qcustomplot.h>

#include <QFontMetricsF>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <cmath>

#include "app/Declarations.h"
#include "desktop/FrontWindow.h"
#include "desktop/PaperChart.h"
#include "desktop/Text.h"

namespace {

constexpr double TwipsOfInch = 1440;
constexpr double MillimetresOfInch = 25.4;
constexpr int TwipsOfPoint = 20;

int Twips(double millimetres) {
  return static_cast<int>(std::lround(millimetres * TwipsOfInch / MillimetresOfInch));
}

QRectF Paper(const QPrinter& device) {
  return device.pageLayout().fullRect(QPageLayout::Millimeter);
}

}  // namespace

int QtPrinter::PageWidth() const {
  return Twips(Paper(device_).width());
}

int QtPrinter::PageHeight() const {
  return Twips(Paper(device_).height());
}

void QtPrinter::SetFont(const PrintFont& font) {
  // Liberation Sans has the widths of Arial.
  font_.setFamilies({ToQt(font.Name), QStringLiteral("Liberation Sans")});
  font_.setStyleHint(QFont::SansSerif);
  font_.setPixelSize(font.Size * TwipsOfPoint);
  font_.setBold(font.Bold);
  font_.setItalic(font.Italic);
  font_.setUnderline(font.Underline);
}

void QtPrinter::Text(int x, int y, const std::string& text, int maxWidth) {
  if (text.empty() || maxWidth <= 0) return;
  const QString shown = ToQt(text);
  const QFontMetricsF metrics(font_);
  const double width = metrics.horizontalAdvance(shown);
  const double condensed = width > maxWidth ? maxWidth / width : 1;
  const QPointF baseline(x, y + metrics.ascent());
  pages_.back().push_back([font = font_, shown, condensed, baseline](QCPPainter& painter) {
    painter.save();
    painter.setFont(font);
    painter.translate(baseline);
    painter.scale(condensed, 1);
    painter.drawText(QPointF(0, 0), shown);
    painter.restore();
  });
}

void QtPrinter::Line(int x1, int y1, int x2, int y2, int penWidth) {
  pages_.back().push_back([=](QCPPainter& painter) {
    painter.setPen(QPen(Qt::black, penWidth));
    painter.drawLine(QLineF(x1, y1, x2, y2));
  });
}

void QtPrinter::Picture(const XYChart& chart, int x, int y, int width, int height) {
  pages_.back().push_back(
      [=, &chart](QCPPainter& painter) { PaintChart(painter, chart, QRectF(x, y, width, height)); });
}

bool QtPrinter::End() {
  QCPPainter painter;
  if (!painter.begin(&device_)) return false;
  painter.scale(device_.logicalDpiX() / TwipsOfInch, device_.logicalDpiY() / TwipsOfInch);
  for (std::size_t page = 0; page < pages_.size(); ++page) {
    if (page > 0 && !device_.newPage()) return false;
    for (const Stroke& stroke : pages_[page]) stroke(painter);
  }
  return painter.end() && device_.printerState() != QPrinter::Error;
}

QtPrinterDialog::QtPrinterDialog() = default;
QtPrinterDialog::~QtPrinterDialog() = default;

QPrinter& QtPrinterDialog::Device(const PrintRequest& request) {
  if (!device_) {
    device_ = std::make_unique<QPrinter>(QPrinter::ScreenResolution);
    device_->setFullPage(true);
  }
  device_->setDocName(ToQt(std::string(Declarations::AppTitle) + " - " + Declarations::FileTitle));
  device_->setPageOrientation(request.Landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
  return *device_;
}

Printer* QtPrinterDialog::Choose(const PrintRequest& request) {
  QPrinter& device = Device(request);
  QPrintDialog dialog(&device, FrontWindow());
  dialog.setWindowTitle(ToQt(request.Title));
  dialog.setWindowModality(Qt::WindowModal);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  if (dialog.exec() != QDialog::Accepted) return nullptr;
  return &printer_.emplace(device);
}

void QtPrinterDialog::Preview(const PrintRequest& request, const std::function<void(Printer&)>& write) {
  QPrintPreviewDialog dialog(&Device(request), FrontWindow());
  dialog.setWindowModality(Qt::WindowModal);
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&write](QPrinter* device) {
    QtPrinter printer(*device);
    write(printer);
  });
  dialog.exec();
}

// See QtPrinter.h.
#include "desktop/print/QtPrinter.h"

#include <qcustomplot.h>

#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QGraphicsView>
#include <QLineEdit>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QScreen>
#include <QTextLayout>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <cmath>

#include "app/Declarations.h"
#include "desktop/chart/ChartWidget.h"
#include "desktop/kit/FrontWindow.h"
#include "desktop/kit/Text.h"
#include "desktop/kit/ToolBar.h"
#include "desktop/kit/WindowPlace.h"

namespace {

constexpr double TwipsOfInch = 1440;
constexpr double MillimetresOfInch = 25.4;
constexpr int TwipsOfPoint = 20;
constexpr int TwipsOfPixel = 15;      // of a screen of 96 dots to the inch, as which a picture is laid out
constexpr int PicturePixels = 12;     // size of its text
constexpr double SmallLetters = 0.7;  // size of exponents and indices

int Twips(double millimetres) {
  return static_cast<int>(std::lround(millimetres * TwipsOfInch / MillimetresOfInch));
}

QRectF Paper(const QPagedPaintDevice& device) {
  return device.pageLayout().fullRect(QPageLayout::Millimeter);
}

QFont SansSerif(const QString& family, int pixels) {
  QFont font;
  font.setFamilies({family, QStringLiteral("Liberation Sans")});  // which has the widths of Arial
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(pixels);
  return font;
}

/// The text on one line or, where it is too wide for that, on two, with an ellipsis in what is too wide
/// still.
QStringList Wrapped(const QString& text, const QFont& font, int width, Qt::TextElideMode ellipsis) {
  QTextLayout layout(text, font);
  QTextOption anywhere;
  anywhere.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(anywhere);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(width);
  layout.endLayout();
  const QString rest = text.mid(line.textLength()).trimmed();
  if (rest.isEmpty()) return {text};
  return {text.left(line.textLength()), QFontMetricsF(font).elidedText(rest, ellipsis, width)};
}

/// Asks the file itself, as Qt does not report a full disk.
bool IsWhole(const QString& name) {
  QFile file(name);
  return file.open(QIODevice::ReadOnly) && file.readAll().trimmed().endsWith("%%EOF");
}

/// Names the parts of a print preview and gives its buttons the keyboard.
void MakePreviewReachable(const QPrintPreviewDialog& preview) {
  for (auto* const bar : preview.findChildren<QToolBar*>()) NameToolBar(*bar);
  for (auto* const button : preview.findChildren<QToolButton*>()) button->setFocusPolicy(Qt::TabFocus);
  for (auto* const line : preview.findChildren<QLineEdit*>()) {
    const bool zoom = qobject_cast<QComboBox*>(line->parent()) != nullptr;
    line->setAccessibleName(zoom ? QObject::tr("Zoom") : QObject::tr("Page"));
  }
  for (auto* const pages : preview.findChildren<QGraphicsView*>()) {
    for (QWidget* const part : {pages->parentWidget(), static_cast<QWidget*>(pages), pages->viewport()})
      part->setAccessibleName(QObject::tr("Pages"));
  }
}

}  // namespace

int QtPrinter::PageWidth() const {
  return Twips(Paper(device_).width());
}

int QtPrinter::PageHeight() const {
  return Twips(Paper(device_).height());
}

void QtPrinter::SetFont(const PrintFont& font) {
  font_ = SansSerif(ToQt(font.Name), font.Size * TwipsOfPoint);
  font_.setBold(font.Bold);
  font_.setItalic(font.Italic);
  font_.setUnderline(font.Underline);
  lineHeight_ = font.LineHeight();
}

int QtPrinter::Text(int x, int y, const std::string& text, int maxWidth, PrintedAs as) {
  if (text.empty() || maxWidth <= 0) return 1;
  if (as == PrintedAs::Value) {
    std::vector<Run> runs;
    const std::string shown = FromQt(Printed(text));  // with raised digits where there are any, to be copied
    for (const TextRun& run : TextRuns(shown)) runs.push_back({ToQt(run.Text), run.At});
    TextLine(x, y, std::move(runs), maxWidth);
    return 1;
  }
  const QStringList lines =
      Wrapped(ToQt(text), font_, maxWidth, as == PrintedAs::Name ? Qt::ElideRight : Qt::ElideMiddle);
  for (const QString& line : lines) {
    TextLine(x, y, {{line, TextRun::Level::Line}}, maxWidth);
    y += lineHeight_;
  }
  return static_cast<int>(lines.size());
}

/// Condensed where it is wider than its room.
void QtPrinter::TextLine(int x, int y, std::vector<Run> runs, int maxWidth) {
  const QFontMetricsF metrics(font_);
  double width = 0;
  for (Run& run : runs) {
    const double scale = run.At == TextRun::Level::Line ? 1 : SmallLetters;
    run.Width = scale * metrics.horizontalAdvance(run.Text);
    width += run.Width;
  }
  const double condensed = width > maxWidth ? maxWidth / width : 1;
  const QPointF baseline(x, y + metrics.ascent());
  pages_.back().push_back([font = font_, runs = std::move(runs), condensed, baseline,
                           height = metrics.ascent()](QCPPainter& painter) {
    painter.save();
    painter.translate(baseline);
    painter.scale(condensed, 1);
    for (const Run& run : runs) {
      const bool small = run.At != TextRun::Level::Line;
      QFont size(font);
      if (small) size.setPixelSize(static_cast<int>(font.pixelSize() * SmallLetters));
      painter.setFont(size);
      const double rise = run.At == TextRun::Level::Raised ? -height / 3 : height / 6;
      painter.drawText(QPointF(0, small ? rise : 0), run.Text);
      painter.translate(run.Width, 0);
    }
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
  const ChartWidget* const shown = ChartWidget::Of(chart);
  if (shown == nullptr) return;
  pages_.back().push_back([=](QCPPainter& painter) {
    painter.save();
    painter.translate(x, y);
    painter.scale(TwipsOfPixel, TwipsOfPixel);
    shown->Paint(painter, QSize(width, height) / TwipsOfPixel,
                 SansSerif(QStringLiteral("Arial"), PicturePixels));
    painter.restore();
  });
}

bool QtPrinter::End() {
  QCPPainter painter;
  if (!painter.begin(&device_)) return false;
  painter.scale(device_.logicalDpiX() / TwipsOfInch, device_.logicalDpiY() / TwipsOfInch);
  const int pages = static_cast<int>(pages_.size());
  bool works = true;
  bool cancelled = false;
  for (int page = 0; page < pages && works && !cancelled; ++page) {
    works = page == 0 || device_.newPage();
    for (const Stroke& stroke : pages_[static_cast<std::size_t>(page)]) stroke(painter);
    cancelled = !TheServices().progress.Show("Preparing the pages", page + 1, pages);
  }
  const auto* const printer = dynamic_cast<QPrinter*>(&device_);
  works = painter.end() && works && (printer == nullptr || printer->printerState() != QPrinter::Error) &&
          (file_.isEmpty() || IsWhole(file_));
  if ((cancelled || !works) && QFileInfo(file_).isFile()) QFile::remove(file_);
  return works || cancelled;
}

QtPrinterDialog::QtPrinterDialog() = default;
QtPrinterDialog::~QtPrinterDialog() = default;

QString QtPrinterDialog::Title() {
  return ToQt(std::string(Declarations::AppTitle) + " - " + Declarations::FileTitle);
}

QPrinter& QtPrinterDialog::Device(const PrintRequest& request) {
  if (!device_) {
    device_ = std::make_unique<QPrinter>(QPrinter::ScreenResolution);
    device_->setFullPage(true);
  }
  device_->setDocName(Title());
  device_->setPageOrientation(request.Landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
  return *device_;
}

Printer* QtPrinterDialog::Choose(const PrintRequest& request) {
  QPrinter& device = Device(request);
  QPrintDialog dialog(&device, FrontWindow());
  dialog.setWindowTitle(ToQt(request.Title));
  dialog.setWindowModality(Qt::WindowModal);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  auto* const page = new QWidget(&dialog);
  page->setWindowTitle(QObject::tr("Report"));
  page->hide();  // until it is turned to
  auto* const option = new QCheckBox(ToQt(request.Option), page);
  option->setObjectName(QStringLiteral("option"));
  option->setChecked(optionChosen_);
  auto* const column = new QVBoxLayout(page);
  column->addWidget(option);
  column->addStretch();
  if (!request.Option.empty()) dialog.setOptionTabs({page});
  if (dialog.exec() != QDialog::Accepted) return nullptr;
  if (!request.Option.empty()) optionChosen_ = option->isChecked();
  return &printer_.emplace(device, device.outputFileName());
}

void QtPrinterDialog::Preview(const PrintRequest& request, const std::function<void(Printer&)>& write) {
  QPrintPreviewDialog dialog(&Device(request), FrontWindow());
  dialog.setWindowModality(Qt::WindowModal);
  dialog.resize(dialog.screen()->availableSize() * 4 / 5);
  dialog.setObjectName(QStringLiteral("preview"));
  KeepPlace(dialog);
  MakePreviewReachable(dialog);
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&write](QPrinter* device) {
    QtPrinter printer(*device, {});
    write(printer);
  });
  dialog.exec();
}

// On the paper that the user printed on last, without asking the system for its printers.
std::string QtPrinterDialog::Pdf(const PrintRequest& request, const std::function<void(Printer&)>& write) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  {
    QPdfWriter device(&file);
    if (device_) device.setPageLayout(device_->pageLayout());
    device.setPageOrientation(request.Landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    device.setPageMargins({});
    device.setTitle(Title());
    device.setCreator(QLatin1String(Declarations::AppTitle));
    QtPrinter printer(device, {});
    write(printer);
  }
  return file.data().toStdString();
}

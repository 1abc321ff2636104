// Printers of the desktop: pages painted as vectors on paper, into a PDF file or on the screen.
#pragma once

#include <QFont>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "platform/Services.h"
#include "platform/TextRuns.h"

class QCPPainter;
class QPagedPaintDevice;
class QPrinter;

/// Keeps the pages until the end of the document. What is cancelled then leaves no file; a printer gets the
/// pages until there.
class QtPrinter : public Printer {
 public:
  /// `file`: where the pages go; empty for a printer, the screen or a device that writes elsewhere.
  QtPrinter(QPagedPaintDevice& device, QString file) : device_(device), file_(std::move(file)) {}

  int PageWidth() const override;
  int PageHeight() const override;
  void SetFont(const PrintFont& font) override;
  int Text(int x, int y, const std::string& text, int maxWidth, PrintedAs as) override;
  void Line(int x1, int y1, int x2, int y2, int penWidth) override;
  void Picture(const XYChart& chart, int x, int y, int width, int height) override;
  void NewPage() override { pages_.emplace_back(); }
  bool End() override;

 private:
  using Stroke = std::function<void(QCPPainter&)>;
  struct Run {
    QString Text;
    TextRun::Level At;
    double Width = 0;
  };
  void TextLine(int x, int y, std::vector<Run> runs, int maxWidth);

  QPagedPaintDevice& device_;
  const QString file_;
  QFont font_;
  int lineHeight_ = 0;
  std::vector<std::vector<Stroke>> pages_{1};
};

class QtPrinterDialog : public PrinterDialog {
 public:
  QtPrinterDialog();
  ~QtPrinterDialog() override;
  Printer* Choose(const PrintRequest& request) override;
  bool IsOptionChosen() const override { return optionChosen_; }
  void Preview(const PrintRequest& request, const std::function<void(Printer&)>& write) override;
  std::string Pdf(const PrintRequest& request, const std::function<void(Printer&)>& write) override;

 private:
  static QString Title();
  /// Made when first needed, as asking the system for its printers takes its time; later it knows what the
  /// user chose last.
  QPrinter& Device(const PrintRequest& request);

  std::unique_ptr<QPrinter> device_;
  std::optional<QtPrinter> printer_;
  bool optionChosen_ = false;
};

// Printed pages as files: their size, their places, their texts, their picture; and what becomes of a
// document that fails or is cancelled.
#include <sys/resource.h>

#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <csignal>
#include <utility>

#include "app/Declarations.h"
#include "desktop/Desk.h"
#include "desktop/Dialogs.h"
#include "desktop/print/QtPrinter.h"
#include "print/Print.h"
#include "rating/frmGraph.h"
#include "rating/frmTable.h"
#include "support/TestFolder.h"

namespace {

using testing::Contains;
using testing::HasSubstr;

/// The standard output of a program of poppler.
QByteArray OutputOf(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " does not run";
  return process.readAllStandardOutput();
}

class Printing : public Desk {
 protected:
  /// Prints into the file; true when no failure is reported.
  bool Pdf(const Print::Document& document, QPageSize::PageSizeId size = QPageSize::Letter,
           QPageLayout::Orientation orientation = QPageLayout::Portrait) {
    QPrinter device(QPrinter::ScreenResolution);
    device.setFullPage(true);
    device.setPageLayout({QPageSize(size), orientation, {}});
    device.setOutputFileName(file_);
    QtPrinter printer(device, file_);
    document.Write(printer);
    return std::exchange(services_.messageBox.Boxes, {}).empty();
  }

  QByteArray Text(const char* option) const {
    return OutputOf(QStringLiteral("pdftotext"), {QLatin1String(option), file_, QStringLiteral("-")});
  }
  int Pages() const { return static_cast<int>(Text("-layout").count('\f')); }
  /// The lines of the file, a single blank between the words.
  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    for (const QByteArray& line : Text("-layout").split('\n')) {
      if (!line.trimmed().isEmpty()) lines.push_back(line.simplified().toStdString());
    }
    return lines;
  }

  struct Word {
    double PageWidth, PageHeight, Left, Top, Right;  ///< points
  };
  Word Find(const char* word) const {
    const QString pattern = QStringLiteral(
        R"re(<page width="(\S+)" height="(\S+)">.*?xMin="(\S+)" yMin="(\S+)" xMax="(\S+)" \S+>%1<)re");
    const QRegularExpression place(pattern.arg(QLatin1String(word)),
                                   QRegularExpression::DotMatchesEverythingOption);
    const auto found = place.match(QString::fromUtf8(Text("-bbox")));
    EXPECT_TRUE(found.hasMatch()) << word;
    const auto number = [&found](int group) { return found.captured(group).toDouble(); };
    return {number(1), number(2), number(3), number(4), number(5)};
  }

  /// The texts of the document on Letter, those of a line together.
  static std::vector<std::string> LinesOf(const Print::Document& document) {
    FakePrinter recorder;
    document.Write(recorder);
    std::vector<std::string> lines;
    int y = 0;
    for (const FakePrinter::PrintedText& text : recorder.Texts) {
      if (text.Text.empty()) continue;
      const std::string simple = QString::fromStdString(text.Text).simplified().toStdString();
      if (std::exchange(y, text.Y) == text.Y) {
        lines.back() += ' ' + simple;
      } else {
        lines.push_back(simple);
      }
    }
    return lines;
  }

  /// A range of so many depths from 0.01 ft.
  void RateDepths(int count) {
    hands_.Click(main_.mnuSolveForFlow);
    RatingRange.VaryCode = 1;
    RatingRange.GraphYColumn = 1;
    RatingRange.RangeMin = RatingRange.RangeStep = 0.01;
    RatingRange.RangeMax = 0.01 * count;
  }
  /// The table of so many depths.
  Print::Document Table(int rows) {
    EnterTrapezoid();
    RateDepths(rows);
    table_.Load();
    return Print::Table(main_, table_.MSFlexGrid1);
  }

  const TestFolder folder_;
  frmTable table_{main_};
  QString file_ = QString::fromStdString((folder_.Path() / "pages.pdf").string());
};

TEST_F(Printing, APageHasTheSizeOfThePaperAndItsTextsTheirPlaces) {
  EnterTrapezoid();
  for (const auto& [size, portrait] :
       {std::pair{QPageSize::Letter, QSizeF(612, 792)}, {QPageSize::A4, QSizeF(595, 842)}}) {
    for (const auto orientation : {QPageLayout::Portrait, QPageLayout::Landscape}) {
      const QSizeF points = orientation == QPageLayout::Portrait ? portrait : portrait.transposed();
      ASSERT_TRUE(Pdf(Print::Report(main_), size, orientation));
      const Word flow = Find("Flow");
      EXPECT_NEAR(flow.PageWidth, points.width(), 0.5);
      EXPECT_NEAR(flow.PageHeight, points.height(), 0.5);
      EXPECT_NEAR(flow.Left, 1872 / 20.0, 1);
      EXPECT_NEAR(flow.Top, 2008 / 20.0, 1);
      EXPECT_NEAR(Find("Untitled").Top, flow.PageHeight - 1708 / 20.0, 1);
    }
  }
}

TEST_F(Printing, ATextWiderThanItsRoomIsCondensed) {
  const auto right = [this](int room) {
    EXPECT_TRUE(Pdf({[room](Printer& printer) {
      printer.SetFont({"Arial", 8});
      printer.Text(2000, 2000, "Froude-number", room);
      printer.End();
    }}));
    return Find("Froude-number").Right;
  };
  const double natural = right(5000);
  EXPECT_GT(natural, 140);
  EXPECT_LT(natural, 170);
  EXPECT_NEAR(right(600), 130, 0.5);
}

TEST_F(Printing, ALongNameTakesTwoLinesAndIsThenCutOff) {
  EnterTrapezoid();
  hands_.Click(main_.mnuOptionsUnitsMetric);
  Declarations::FilePath = "/home/me/x^2/" + std::string(250, 'z') + "/Mill.fwd";
  std::string name = "Culvert^2";
  for (int i = 0; i < 15; ++i) name += " a culvert" + std::to_string(i);
  main_.tbProjName.Text = name;
  ASSERT_TRUE(Pdf(Print::Report(main_)));
  const auto lines = Lines();
  ASSERT_GT(lines.size(), 4U);
  EXPECT_EQ(name.substr(0, lines[0].size()), lines[0]) << "exponents belong to units";
  EXPECT_THAT(lines[1], testing::EndsWith("\xE2\x80\xA6"));
  EXPECT_NE(name.find(lines[1].substr(0, lines[1].size() - 3)), std::string::npos);
  EXPECT_EQ(lines[2], "Manning's Equation - Trapezoidal Channel");
  EXPECT_THAT(lines, Contains(testing::EndsWith(" m\xC2\xB2"))) << "the flow area";
  EXPECT_THAT(lines, Contains("/home/me/x^2/"));
  EXPECT_THAT(lines, Contains(testing::EndsWith("/Mill.fwd 2026-03-09")));
  EXPECT_NEAR(Find("Equation").Top, (1008 + 2 * 276) / 20.0, 1);
}

TEST_F(Printing, EveryTextIsOnItsLineOfItsPage) {
  const auto expectWhole = [this](const Print::Document& document, std::size_t lines, int pages) {
    ASSERT_TRUE(Pdf(document));
    EXPECT_EQ(Lines(), LinesOf(document));
    EXPECT_EQ(Lines().size(), lines);
    EXPECT_EQ(Pages(), pages);
  };
  expectWhole(Table(100), 100 + 2 * 4, 2);  // on each page title, heads and two lines of the foot
  hands_.Type(main_.tbProjName, "Schleuse \xC3\xBC");
  // Five digits, which the room of a point condenses.
  EnterSection("10013.25 105.5 0.035, 10014.25 100, 10015.25 100, 10016.25 100, 10017.25 105.5", "102");
  expectWhole(Print::Report(main_), 19, 1);
}

TEST_F(Printing, ThePictureIsWhatTheGraphWindowShowsInLightColours) {
  EnterPipe("18", "1");
  RateDepths(150);
  frmGraph form(main_);
  windows_.Show(form);
  hands_.Window(form).setPalette(QColor(30, 30, 30));
  Press("Ctrl+L");
  ASSERT_TRUE(Pdf(Print::Graph(main_, form.MSChart1)));
  const auto lines = Lines();
  EXPECT_THAT(lines, Contains("Depth, ft"));
  EXPECT_THAT(lines, Contains(HasSubstr(form.lblMarked.Caption)));
  EXPECT_THAT(lines, Contains(HasSubstr("0.01 0.1 1")));
  form.Unload();

  QFile file(file_);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_FALSE(file.readAll().contains("/Subtype /Image")) << "lines stay lines";
  const QImage page = QImage::fromData(OutputOf(QStringLiteral("pdftoppm"), {QStringLiteral("-png"), file_}));
  ASSERT_FALSE(page.isNull());
  const QImage shade = page.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  EXPECT_GT(qGray(shade.pixel(0, 0)), 240);
}

TEST_F(Printing, WhatIsCancelledOrFailsLeavesNoFile) {
  const Print::Document table = Table(200);
  services_.progress.CancelAt = 2;
  EXPECT_TRUE(Pdf(table));
  EXPECT_FALSE(QFile::exists(file_));
  services_.progress.CancelAt = -1;

  // As on a full disk: a write beyond so many bytes fails.
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit few{30000, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &few);
  const bool works = Pdf(table);
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_FALSE(works);
  EXPECT_FALSE(QFile::exists(file_));

  services_.progress.Reports.clear();
  EXPECT_TRUE(Pdf(table));
  EXPECT_EQ(Pages(), 4);
  EXPECT_EQ(services_.progress.Reports.back(), "Preparing the pages 4/4");
  file_ += QStringLiteral("/no such folder/pages.pdf");
  EXPECT_FALSE(Pdf(Print::Report(main_)));
}

TEST_F(Printing, TheDialogProposesWhatThePagesLookBestIn) {
  EnterTrapezoid();
  QtPrinterDialog dialogs;
  WhenOpen<QPrintDialog>([](QPrintDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Print"));
    EXPECT_EQ(dialog.printer()->pageLayout().orientation(), QPageLayout::Landscape);
    dialog.reject();
  });
  EXPECT_EQ(dialogs.Choose({"Print", true}), nullptr);
  WhenOpen<QPrintDialog>([this](QPrintDialog& dialog) {
    EXPECT_EQ(dialog.printer()->pageLayout().orientation(), QPageLayout::Portrait);
    dialog.findChild<QLineEdit*>(QStringLiteral("filename"))->setText(file_);
    auto* const option = dialog.findChild<QCheckBox*>(QStringLiteral("option"));
    auto* const page = option->parentWidget();
    auto* const pages = dynamic_cast<QTabWidget*>(page->parentWidget()->parentWidget());
    ASSERT_NE(pages, nullptr);
    EXPECT_FALSE(page->isVisibleTo(pages)) << "on the page before it";
    pages->setCurrentWidget(page);
    EXPECT_TRUE(page->isVisibleTo(pages));
    option->click();
    dialog.accept();
  });
  Printer* const printer = dialogs.Choose({"Print", false, "With the working"});
  ASSERT_NE(printer, nullptr);
  EXPECT_TRUE(dialogs.IsOptionChosen());
  Print::Report(main_).Write(*printer);
  EXPECT_EQ(Pages(), 1);
}

TEST_F(Printing, ThePreviewShowsEveryPage) {
  const Print::Document table = Table(100);
  WhenOpen<QPrintPreviewDialog>([](QPrintPreviewDialog& dialog) {
    auto* const pages = dialog.findChild<QPrintPreviewWidget*>();
    EXPECT_EQ(pages->orientation(), QPageLayout::Landscape);
    EXPECT_EQ(pages->pageCount(), 3);
    pages->setPortraitOrientation();
    EXPECT_EQ(pages->pageCount(), 2);
    dialog.reject();
  });
  QtPrinterDialog().Preview({"Print", table.Landscape}, table.Write);
}

}  // namespace

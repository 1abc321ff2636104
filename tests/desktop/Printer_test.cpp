// Printed pages as files: their size, their places, their texts as the windows show them, their picture; and
// what becomes of a document that fails or is cancelled.
#include <sys/resource.h>

#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <csignal>
#include <utility>

#include "desktop/Desk.h"
#include "desktop/Dialogs.h"
#include "desktop/GridTable.h"
#include "desktop/QtPrinter.h"
#include "engine/ChannelState.h"
#include "print/Print.h"
#include "rating/frmGraph.h"
#include "rating/frmTable.h"
#include "support/TestFolder.h"

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::UnorderedElementsAreArray;

/// What a program of poppler writes.
QByteArray Told(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " does not run";
  return process.readAllStandardOutput();
}

class Printing : public Desk {
 protected:
  /// Prints into the file; true when no failure is told.
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
    return Told(QStringLiteral("pdftotext"), {QLatin1String(option), file_, QStringLiteral("-")});
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
    double Left, Top, Right;  ///< points
  };
  /// The place of a word, and the size of its page.
  Word Find(const char* word, QSizeF* page = nullptr) const {
    const QString told = QString::fromUtf8(Text("-bbox"));
    const auto numbers = [&told](const QString& pattern) { return QRegularExpression(pattern).match(told); };
    if (page != nullptr) {
      const auto size = numbers(QStringLiteral("<page width=\"([0-9.]+)\" height=\"([0-9.]+)\""));
      *page = {size.captured(1).toDouble(), size.captured(2).toDouble()};
    }
    const auto at =
        numbers(QStringLiteral("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\"[^>]*>%1<")
                    .arg(QLatin1String(word)));
    EXPECT_TRUE(at.hasMatch()) << word;
    return {at.captured(1).toDouble(), at.captured(2).toDouble(), at.captured(3).toDouble()};
  }

  /// Caption, text and unit of every field that the main window shows, as they stand side by side.
  std::vector<std::string> Fields() {
    std::vector<std::string> fields;
    const QWidget& window = hands_.Window(main_);
    for (const BoxEdit* const box : window.findChildren<BoxEdit*>()) {
      if (!box->isVisible() || !box->isEnabled() || box == &Edit(main_.tbProjName)) continue;
      QString caption, unit;
      for (const QLabel* const label : box->parentWidget()->findChildren<QLabel*>()) {
        if (label->buddy() == box) caption = label->text().remove(u'&');
        if (label->x() > box->x() && label->geometry().contains(label->x(), box->geometry().center().y()))
          unit = label->text();
      }
      if (box == &Edit(main_.tbCritS)) unit = QStringLiteral("ft/ft");  // on paper that of a slope
      const QString gap = unit.startsWith(u':') ? QString() : QStringLiteral(" ");
      fields.push_back((caption + u' ' + box->text() + gap + unit).simplified().toStdString());
    }
    return fields;
  }

  /// A range of so many depths from 0.01 ft.
  void RateDepths(int count) {
    hands_.Click(main_.mnuSolveForFlow);
    RatingRange.VaryCode = 1;
    RatingRange.GraphYColumn = 1;
    RatingRange.RangeMin = RatingRange.RangeStep = 0.01;
    RatingRange.RangeMax = 0.01 * count;
  }

  const TestFolder folder_;
  QString file_ = QString::fromStdString((folder_.Path() / "pages.pdf").string());
};

TEST_F(Printing, APageHasTheSizeOfThePaperAndItsTextsTheirPlaces) {
  EnterTrapezoid();
  struct Case {
    QPageSize::PageSizeId Size;
    QPageLayout::Orientation Orientation;
    QSizeF Points;
  };
  for (const auto& [size, orientation, points] :
       std::initializer_list<Case>{{QPageSize::Letter, QPageLayout::Portrait, {612, 792}},
                                   {QPageSize::Letter, QPageLayout::Landscape, {792, 612}},
                                   {QPageSize::A4, QPageLayout::Portrait, {595, 842}},
                                   {QPageSize::A4, QPageLayout::Landscape, {842, 595}}}) {
    ASSERT_TRUE(Pdf(Print::Report(main_), size, orientation));
    QSizeF page;
    const Word flow = Find("Flow", &page);
    EXPECT_NEAR(page.width(), points.width(), 0.5);
    EXPECT_NEAR(page.height(), points.height(), 0.5);
    EXPECT_NEAR(flow.Left, 1872 / 20.0, 1);
    EXPECT_NEAR(flow.Top, 2008 / 20.0, 1);
    EXPECT_NEAR(Find("Untitled").Top, page.height() - 1708 / 20.0, 1);
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

TEST_F(Printing, TheReportSaysWhatTheWindowShows) {
  hands_.Type(main_.tbProjName, "Schleuse \xC3\xBC");
  EnterTrapezoid();
  for (int row = 1; row <= 5; ++row) {  // five digits, which the room of a point condenses
    auto& point = ChannelState.IrregPoints[static_cast<std::size_t>(row)];
    point[1] = std::to_string(10012 + row) + ".25";
    point[2] = row == 1 || row == 5 ? "105.5" : "100";
    point[3] = row == 1 ? "0.035" : "";
  }
  const std::vector<std::string> points = {"Sta Elev n Sta Elev n Sta Elev n Sta Elev n",
                                           "10013.25 105.5 0.035 10014.25 100 10015.25 100 10016.25 100",
                                           "10017.25 105.5"};
  struct Case {
    MenuItem& Type;
    std::initializer_list<std::pair<TextBox*, const char*>> Texts;
    std::size_t Fields;
  };
  for (const Case& each : std::initializer_list<Case>{
           {main_.mnuOptionsTrap, {}, 16},
           {main_.mnuOptionsRect, {}, 14},
           {main_.mnuOptionsTriangular, {{&main_.tbSSL, "2"}, {&main_.tbSSR, "1.5"}}, 15},
           {main_.mnuOptionsCircular, {{&main_.tbDiameter, "96"}}, 14},
           {main_.mnuOptionsIrreg, {}, 12}}) {
    if (&each.Type == &main_.mnuOptionsIrreg) ChannelState.IrregPointCount = 5;
    hands_.Click(each.Type);
    for (const auto& [box, text] : each.Texts) hands_.Type(*box, text);
    std::vector<std::string> expected = Fields();
    EXPECT_EQ(expected.size(), each.Fields);
    expected.insert(
        expected.end(),
        {main_.tbProjName.Text, "Manning's Equation - " + ChannelState.ChannelType, "Untitled 2026-03-09"});
    if (ChannelState.ChannelType == ChannelTypes::Irregular) {
      expected.insert(expected.end(), points.begin(), points.end());
    }
    ASSERT_TRUE(Pdf(Print::Report(main_)));
    std::vector<std::string> lines = Lines();
    lines.pop_back();  // the version
    EXPECT_THAT(lines, UnorderedElementsAreArray(expected));
  }
}

TEST_F(Printing, TheTablePagesSayWhatTheTableShows) {
  EnterTrapezoid();
  RateDepths(100);
  frmTable form(main_);
  windows_.Show(form);
  const QAbstractItemModel& table = *hands_.Of<GridTable>(form.MSFlexGrid1).model();
  ASSERT_EQ(table.rowCount(), 100);
  const auto line = [&table](const std::function<QString(int column)>& text) {
    QStringList cells;
    for (int column = 0; column < table.columnCount(); ++column) cells << text(column);
    return cells.join(u' ').toStdString();
  };
  const auto heads = line([&](int column) { return table.headerData(column, Qt::Horizontal).toString(); });
  std::vector<std::string> expected;
  for (int row = 0; row < 100; ++row) {
    if (row % 58 == 0) expected.push_back(heads);
    expected.push_back(line([&](int column) { return table.index(row, column).data().toString(); }));
  }
  ASSERT_TRUE(Pdf(Print::Table(main_, form.MSFlexGrid1)));
  std::vector<std::string> rows = Lines();
  std::erase_if(rows, [](const std::string& text) { return std::ranges::count(text, ' ') < 13; });
  EXPECT_EQ(rows, expected);
  form.Unload();
}

TEST_F(Printing, ThePictureIsWhatTheGraphWindowShowsInLightColours) {
  hands_.Click(main_.mnuOptionsCircular);
  RateDepths(150);
  for (const auto& [box, text] : {std::pair{&main_.tbDiameter, "18"},
                                  {&main_.tbDepth, "1"},
                                  {&main_.tbSlope, "0.004"},
                                  {&main_.tbMann, "0.013"}}) {
    hands_.Type(*box, text);
  }
  frmGraph form(main_);
  windows_.Show(form);
  hands_.Window(form).setPalette(QColor(30, 30, 30));
  Key(Qt::Key_L, Qt::ControlModifier);
  ASSERT_TRUE(Pdf(Print::Graph(main_, form.MSChart1)));
  const auto lines = Lines();
  EXPECT_THAT(lines, Contains("Depth, ft"));
  EXPECT_THAT(lines, Contains(HasSubstr(form.lblMarked.Caption)));
  EXPECT_THAT(lines, Contains(HasSubstr("0.01 0.1 1")));
  form.Unload();

  QFile file(file_);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_FALSE(file.readAll().contains("/Subtype /Image")) << "lines stay lines";
  const QImage page = QImage::fromData(Told(QStringLiteral("pdftoppm"), {QStringLiteral("-png"), file_}));
  ASSERT_FALSE(page.isNull());
  int light = 0;
  for (int y = 0; y < page.height(); ++y) {
    for (int x = 0; x < page.width(); ++x) light += qGray(page.pixel(x, y)) > 200 ? 1 : 0;
  }
  EXPECT_GT(light, 0.95 * page.width() * page.height());
}

TEST_F(Printing, WhatIsCancelledOrFailsLeavesNoFile) {
  EnterTrapezoid();
  RateDepths(200);
  frmTable form(main_);
  windows_.Show(form);
  const Print::Document table = Print::Table(main_, form.MSFlexGrid1);
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
  form.Unload();
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
    dialog.accept();
  });
  Printer* const printer = dialogs.Choose({"Print", false});
  ASSERT_NE(printer, nullptr);
  Print::Report(main_).Write(*printer);
  EXPECT_EQ(Pages(), 1);
}

TEST_F(Printing, ThePreviewShowsEveryPage) {
  EnterTrapezoid();
  RateDepths(100);
  frmTable form(main_);
  windows_.Show(form);
  WhenOpen<QPrintPreviewDialog>([](QPrintPreviewDialog& dialog) {
    auto* const pages = dialog.findChild<QPrintPreviewWidget*>();
    EXPECT_EQ(pages->orientation(), QPageLayout::Landscape);
    EXPECT_EQ(pages->pageCount(), 3);
    pages->setPortraitOrientation();
    EXPECT_EQ(pages->pageCount(), 2);
    dialog.reject();
  });
  const Print::Document table = Print::Table(main_, form.MSFlexGrid1);
  QtPrinterDialog().Preview({"Print", table.Landscape}, table.Write);
  form.Unload();
}

}  // namespace

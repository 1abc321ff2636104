// See Print.h.
#include "print/Print.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "app/Declarations.h"
#include "app/main/ChannelTypes.h"
#include "print/PageWriter.h"
#include "print/ReportLines.h"
#include "print/frmTempPic.h"

namespace Print {

namespace {

constexpr PrintFont BodyFont{"Arial", 10};
constexpr PrintFont TableFont{"Arial", 8};
constexpr PrintFont TableHeadFont{"Arial", 8, false, false, true};

constexpr int LabelColumn = Layout::Tab(1);
constexpr int ValueColumn = Layout::Tab(4);
constexpr int PictureTop = 4008;
constexpr int LeastPictureHeight = 3600;
constexpr int TableBottom = 3008;  // above the bottom edge
constexpr int MostPointsOfLine = 4;
constexpr int CellsOfPoint = 3;

void TurnPage(PageWriter& page) {
  page.NextPage();
  page.SetFont(BodyFont);
}

void Lines(PageWriter& page, const frmMain& main, const std::vector<const Field*>& lines) {
  for (const Field* const line : lines) {
    if (page.IsFull(1)) TurnPage(page);
    page.Cell(LabelColumn, ValueColumn, (main.*line->Name).Caption);
    page.Cell(ValueColumn, page.Right(), ReportValue(main, *line));
    page.EndLine();
  }
}

/// Prints a cell of the group of station, elevation and n that stands `group` groups from the left.
void PointCell(PageWriter& page, int group, int cell, const std::string& text) {
  const int stop = CellsOfPoint * group + cell;
  page.Cell(Layout::Tab(stop), Layout::Tab(stop + 1), text);
}

/// As many points as stand on the paper side by side.
int PointsOfLine(const PageWriter& page) {
  return std::clamp((page.TabStops() - 1) / CellsOfPoint, 1, MostPointsOfLine);
}

void PointHeads(PageWriter& page) {
  constexpr const char* Heads[] = {"Sta", "Elev", "n"};
  for (int group = 0; group < PointsOfLine(page); ++group) {
    for (int cell = 1; cell <= CellsOfPoint; ++cell) PointCell(page, group, cell, Heads[cell - 1]);
  }
  page.EndLine();
}

void Points(PageWriter& page) {
  const ChannelRecord& record = ChannelState;
  const int pointsOfLine = PointsOfLine(page);
  PointHeads(page);
  for (int first = 1; first <= record.IrregPointCount; first += pointsOfLine) {
    if (page.IsFull(1)) {
      TurnPage(page);
      PointHeads(page);
    }
    for (int row = first; row < first + pointsOfLine && row <= record.IrregPointCount; ++row) {
      const auto& point = record.IrregPoints[static_cast<std::size_t>(row)];
      for (int cell = 1; cell <= CellsOfPoint; ++cell) {
        PointCell(page, row - first, cell, point[static_cast<std::size_t>(cell)].Text());
      }
    }
    page.EndLine();
  }
}

void Inputs(PageWriter& page, const frmMain& main) {
  page.SetFont(BodyFont);
  Lines(page, main, ReportInputs());
  if (CurrentChannelType().IsSurveyed()) Points(page);
}

/// The results stay together where a page can hold them.
void Results(PageWriter& page, const frmMain& main) {
  page.EndLine();
  const auto lines = ReportResults();
  if (page.IsFull(static_cast<int>(lines.size()))) TurnPage(page);
  Lines(page, main, lines);
}

/// The picture below what the page holds already, or on a page of its own where it would be too small to be
/// read and is larger there.
void Picture(PageWriter& page, Printer& printer, const XYChart& chart) {
  const frmTempPic holder(chart);
  const auto below = [&](int top) {
    return holder.Fitted({page.Right() - Layout::LeftMargin, page.FooterRule() - top});
  };
  const int wanted = std::min(below(PictureTop).Height, LeastPictureHeight);
  if (below(std::max(page.Y(), PictureTop)).Height < wanted) page.NextPage();
  const int top = std::max(page.Y(), PictureTop);
  const ChartSize size = below(top);
  if (size.Height <= 0) return;
  printer.Picture(*holder.PicTemp.Picture, Layout::LeftMargin, top, size.Width, size.Height);
}

/// x of each column; the leading one, which is empty, stands at the edge of the paper.
using ColumnPositions = std::array<int, 21>;

ColumnPositions TablePositions(int right, int lastColumn) {
  ColumnPositions x{};
  for (int i = 1; i <= lastColumn; ++i) {
    const double share = static_cast<double>(right - Layout::LeftMargin) * (i - 1) / lastColumn;
    x.at(static_cast<std::size_t>(i)) = static_cast<int>(std::nearbyint(Layout::LeftMargin + share));
  }
  return x;
}

class TableWriter {
 public:
  TableWriter(Printer& printer, const frmMain& main, const FlexGrid& grid, const std::string& note)
      : printer_(printer),
        grid_(grid),
        note_(note),
        page_(printer, main),
        x_(TablePositions(page_.Right(), grid.Cols() - 1)) {}

  void Write() {
    const int last = grid_.Rows() - 1;
    Heads();
    for (int row = 1; row <= last; ++row) {
      Row(row);
      if (row == last || page_.Y() <= printer_.PageHeight() - TableBottom) continue;
      page_.NextPage();
      Heads();
    }
    End(page_, printer_);
  }

 private:
  void Heads() {
    if (!note_.empty()) {
      page_.SetFont(TableFont);
      page_.EndLine(page_.Cell(Layout::LeftMargin, page_.Right(), note_, PrintedAs::Name) + 1);
    }
    page_.SetFont(TableHeadFont);
    Row(0);
    page_.SetFont(TableFont);
  }

  void Row(int row) {
    const int last = grid_.Cols() - 1;
    for (int column = 0; column <= last; ++column) {
      const int right = column < last ? x_[static_cast<std::size_t>(column) + 1] : page_.Right();
      page_.Cell(x_[static_cast<std::size_t>(column)], right, grid_.Text(row, column));
    }
    page_.EndLine();
  }

  Printer& printer_;
  const FlexGrid& grid_;
  const std::string& note_;
  PageWriter page_;
  const ColumnPositions x_;
};

PrintRequest Request(const Document& document) {
  return {"Print", document.Landscape, document.Option};
}

}  // namespace

void End(PageWriter& page, Printer& printer) {
  page.Footer();
  if (printer.End()) return;
  TheServices().messageBox.Show("The pages cannot be printed.", Declarations::AppTitle, BoxIcon::Exclamation,
                                BoxButtons::Ok);
}

Document Report(const frmMain& main, const Appendix& appendix) {
  return {[&main, append = appendix.Write](Printer& printer) {
            PageWriter page(printer, main);
            Inputs(page, main);
            Results(page, main);
            if (append && TheServices().printerDialog.IsOptionChosen()) {
              page.NextPage();
              append(page);
            }
            End(page, printer);
          },
          false, appendix.Option};
}

Document Graph(const frmMain& main, const XYChart& chart) {
  return {[&main, &chart](Printer& printer) {
    PageWriter page(printer, main);
    Inputs(page, main);
    Picture(page, printer, chart);
    End(page, printer);
  }};
}

Document Table(const frmMain& main, const FlexGrid& grid, const std::string& note) {
  return {[&main, &grid, note](Printer& printer) { TableWriter(printer, main, grid, note).Write(); }, true};
}

void ToPrinter(const Document& document) {
  if (Printer* const printer = TheServices().printerDialog.Choose(Request(document)))
    document.Write(*printer);
}

void ToPreview(const Document& document) {
  TheServices().printerDialog.Preview(Request(document), document.Write);
}

std::string ToPdf(const Document& document) {
  return TheServices().printerDialog.Pdf(Request(document), document.Write);
}

}  // namespace Print

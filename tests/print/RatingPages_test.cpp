// The printed pages of rating table and rating graph. Positions by hand, as for the report.
#include <gmock/gmock.h>

#include <map>
#include <stdexcept>

#include "app/Declarations.h"
#include "app/Units.h"
#include "print/Print.h"
#include "print/PrintStage.h"
#include "rating/frmGraph.h"
#include "rating/frmTable.h"

namespace {

using testing::Contains;
using testing::ElementsAreArray;
using testing::IsEmpty;

class RatingPages : public PrintStage {
 protected:
  /// Prints a grid whose cells tell their place, the leading column empty.
  void PrintGrid(int rows, int cols = 15) {
    Form form("form");
    FlexGrid grid(&form, "grid");
    std::vector<std::vector<std::string>> cells;
    for (int row = 0; row <= rows; ++row) {
      cells.emplace_back();
      for (int col = 0; col < cols; ++col) {
        cells.back().push_back(col == 0 ? "" : std::to_string(row) + "/" + std::to_string(col));
      }
    }
    grid.Load(std::move(cells), cols);
    AcceptTheDialog();
    Print::ToPrinter(Print::Table(Main, grid));
  }

  // 1152 + 9216 (i - 1) / 14 on Letter; the leading column at the edge of the paper.
  static constexpr int Columns[] = {0,    1152, 1810, 2469, 3127, 3785, 4443, 5102,
                                    5760, 6418, 7077, 7735, 8393, 9051, 9710};
  static Calls GridRow(int row, int y) {
    Calls calls;
    for (int col = 0; col < 15; ++col) {
      const std::string text = col == 0 ? "" : std::to_string(row) + "/" + std::to_string(col);
      calls.push_back("text " + std::to_string(Columns[col]) + " " + std::to_string(y) + " " + text);
    }
    return calls;
  }
  Calls GridPage(int first, int last) {
    Calls page = Head() + Calls{"font Arial 8 False False True"} + GridRow(0, 2008) +
                 Calls{"font Arial 8 False False False"};
    for (int row = first; row <= last; ++row) page = page + GridRow(row, 2192 + 184 * (row - first));
    return page + Foot();
  }
};

TEST_P(RatingPages, ATableTakesASheetFor58RowsOfLetterAndNoneForHeadsOnly) {
  // Rows begin at 2192; the 58th ends at 12864, the first beyond 15840 - 3008.
  for (const auto& [rows, pages] : {std::pair(1, 1), {57, 1}, {58, 1}, {59, 2}, {116, 2}, {1000, 18}}) {
    PrintGrid(rows);
    ASSERT_EQ(Pages(), pages) << rows;
    EXPECT_THAT(Page(1), ElementsAreArray(GridPage(1, std::min(rows, 58)))) << rows;
    EXPECT_THAT(Page(pages), ElementsAreArray(GridPage(58 * (pages - 1) + 1, rows))) << rows;
    EXPECT_EQ(Paper.Calls.back(), "end");
  }
  EXPECT_TRUE(Fakes.printerDialog.Requests.back().Landscape);
}

TEST_P(RatingPages, ARowThatEndsOnTheLimitIsNotBeyondIt) {
  UsePaper(12240, 12680 + 3008);  // the 57th row ends at 12680
  PrintGrid(59);
  EXPECT_THAT(Page(1), ElementsAreArray(GridPage(1, 58)));
  UsePaper(12240, 12680 + 3007);
  PrintGrid(59);
  EXPECT_THAT(Page(1), ElementsAreArray(GridPage(1, 57)));
}

TEST_P(RatingPages, ColumnsAreRoundedHalfToEvenAndNeverOverlap) {
  UsePaper(10031, 15840);  // 7007 (i - 1) / 14: 1652.5 and 2653.5
  PrintGrid(1);
  EXPECT_EQ(Paper.Texts[4].X, 1652);
  EXPECT_EQ(Paper.Texts[6].X, 2654);
  std::map<int, int> right;  // by line
  for (const FakePrinter::PrintedText& text : Paper.Texts) {
    EXPECT_GT(text.MaxWidth, 400) << text.Text;
    if (right.contains(text.Y)) {
      EXPECT_LT(right[text.Y], text.X) << text.Text;
    }
    right[text.Y] = text.X + text.MaxWidth;
  }
  EXPECT_LT(right[2192], 10031 - 1872);
}

TEST_P(RatingPages, AGridOfTooManyColumnsIsAFault) {
  PrintGrid(1, 21);
  EXPECT_EQ(Paper.Calls.back(), "end");
  EXPECT_THROW(PrintGrid(1, 22), std::out_of_range);
}

TEST_P(RatingPages, ThePreviewOfTheTableWindowShowsItsCells) {
  TypeRectangle();
  RatingRange = {Units::Length, 1, 1, 2, 1, false};
  frmTable table(Main);
  table.Load();
  table.mnuPrintPreview.Click();
  const Calls& shown = Fakes.printerDialog.Screen.Calls;
  EXPECT_THAT(shown, Contains("text 2469 2008 Slope, ft/ft"));
  EXPECT_THAT(shown, Contains(Spelled("text 1152 2376 91.7")));  // the second row, for 2 ft
  EXPECT_THAT(Paper.Calls, IsEmpty());
  AcceptTheDialog();
  table.mnuPrint.Click();
  EXPECT_EQ(Paper.Calls, shown);
}

TEST_P(RatingPages, TheGraphIsAsLargeAsFitsInItsOwnProportions) {
  TypeRectangle();
  RatingRange = {Units::Length, 1, 0, 2, 0.01, false};
  Fakes.clipboard.SetText("before");
  frmGraph graph(Main);
  graph.Load();
  struct Case {
    int Width, Height;  ///< of the paper
    ChartSize Chart;
    const char* Picture;  ///< nothing: there is no room
  };
  // The room is W - 3024 wide and H - 5816 high.
  for (const Case& each :
       {Case{12240, 15840, {4, 3}, "9216 6912"}, Case{11906, 16838, {4, 3}, "8882 6661"},
        Case{15840, 12240, {4, 3}, "8565 6424"}, Case{12240, 15840, {500, 1000}, "5012 10024"},
        Case{12240, 15840, {9216, 10024}, "9216 10024"}, Case{8000, 5816, {4, 3}, ""},
        Case{12240, 15840, {0, 300}, ""}}) {
    UsePaper(each.Width, each.Height);
    graph.MSChart1.Size = each.Chart;
    AcceptTheDialog();
    graph.mnuPrint.Click();
    const std::string picture = each.Picture;
    const Calls drawn = picture.empty() ? Calls{} : Calls{"picture 1152 4008 " + picture};
    EXPECT_EQ(Calls(Paper.Calls.begin(), Paper.Calls.begin() + 3), Head());
    EXPECT_EQ(Paper.Calls[13], "text 4032 2928 10 ft") << "the last input";
    EXPECT_EQ(Calls(Paper.Calls.begin() + 14, Paper.Calls.end()), drawn + Foot() + Calls{"end"});
  }
  EXPECT_EQ(Fakes.clipboard.Text(), "before");
  graph.MSChart1.Size = {2, 1};
  graph.mnuPrintPreview.Click();
  EXPECT_THAT(Fakes.printerDialog.Screen.Calls, Contains("picture 1152 4008 9216 4608"));
}

TEST_P(RatingPages, AGraphStandsBelowThePointsWhereItCanBeRead) {
  Main.mnuOptionsIrreg_Click();
  const frmGraph graph(Main);
  struct Case {
    int Width, Height;  ///< of the paper
    int Points;
    int Page;
    const char* Picture;
  };
  // 3 inputs and the heads end at 2928, each line of four points 230 below the one before. The picture ends
  // at H - 1808 and is W - 3024 wide at most.
  for (const Case& each :
       {Case{12240, 15840, 16, 1, "4008 9216 6912"}, Case{12240, 15840, 17, 1, "4078 9216 6912"},
        Case{12240, 15840, 72, 1, "7068 9216 6912"}, Case{12240, 15840, 100, 1, "8678 7138 5354"},
        // 3824 are left, then 3594.
        Case{15840, 12240, 64, 1, "6608 5098 3824"}, Case{15840, 12240, 65, 2, "4008 8565 6424"},
        // On a small sheet it is never larger than 2575.
        Case{11906, 8391, 16, 1, "4008 3433 2575"}, Case{11906, 8391, 17, 2, "4008 3433 2575"}}) {
    UsePaper(each.Width, each.Height);
    ChannelState.IrregPointCount = each.Points;
    AcceptTheDialog();
    Print::ToPrinter(Print::Graph(Main, graph.MSChart1));
    ASSERT_EQ(Pages(), each.Page) << each.Points;
    EXPECT_THAT(Page(each.Page), Contains(std::string("picture 1152 ") + each.Picture)) << each.Points;
  }
  EXPECT_EQ(Page(2), Head() + Calls{"picture 1152 4008 3433 2575"} + Foot());
}

INSTANTIATE_LOCALES(RatingPages);

}  // namespace

// The settings dialogs and both windows: what they show, take over, copy and export.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "RatingStage.h"
#include "app/Declarations.h"
#include "rating/frmGraph.h"
#include "rating/frmGraphSettings.h"
#include "rating/frmTable.h"
#include "rating/frmTableSettings.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::vector<TypedPoint> Vee = {{"0", "110", "0.03"}, {"10", "100", ""}, {"20", "110", ""}};

class RatingWindows : public RatingStage {
 protected:
  template <class Settings>
  void ThenOK() {
    Then<Settings>([](Settings& settings) {
      EXPECT_TRUE(settings.cmdOK.Enabled);
      settings.cmdOK_Click();
    });
  }
  void OpenTable(const std::function<void(frmTable&)>& act) {
    ThenOK<frmTableSettings>();
    Then<frmTable>(act);
    Main.mnuSolveTable_Click();
  }
  void OpenGraph(const std::function<void(frmGraph&)>& act) {
    ThenOK<frmGraphSettings>();
    Then<frmGraph>(act);
    Main.mnuSolveGraph_Click();
  }
  static std::string Boxes(const frmTableSettings& settings) {
    return Text(settings.tbMin) + "|" + Text(settings.tbMax) + "|" + Text(settings.tbIncrement);
  }
};

TEST_P(RatingWindows, TheTableOfTheTextbookRectangle) {
  TypeRectangle();
  OpenTable([this](frmTable& table) {
    FlexGrid& grid = table.MSFlexGrid1;
    EXPECT_EQ(table.Caption.Get(), "Flumewise - Rectangular Channel");
    EXPECT_EQ(grid.Rows(), 21);
    EXPECT_EQ(grid.Cols(), 15);
    EXPECT_THAT(grid.ColWidths.Get(), testing::Each(testing::AnyOf(200, 1200)));
    EXPECT_EQ(grid.ColWidths.Get()[0], 200);
    // R = 20/14, V = 4.5848, V^2/2g = 0.32667, yc = (Q^2 / g b^2)^(1/3) = 1.3775, F = V / sqrt(2 g) = 0.5715;
    // Sc: A = 13.775, P = 12.755, V = 6.6567, so (0.013 V / 1.485919 R^(2/3))^2 = 0.003061.
    const char* const last[] = {"",     "91.7", "2.000", "0.00100", "0.0130", "10.0",  "4.58",   "0.327",
                                "20.0", "14.0", "1.43",  "10.0",    "0.572",  "1.377", "0.00306"};
    for (int column = 0; column < 15; ++column) EXPECT_EQ(grid.Text(20, column), Spelled(last[column]));
    EXPECT_EQ(grid.Text(1, 2), Spelled("0.100")) << "no row for the depth 0";

    table.mnuEditCopy_Click();
    EXPECT_EQ(Fakes.clipboard.Text(), "Flow, cfs\r" + grid.Text(1, 1)) << "one cell is selected at first";
    grid.Selection = {20, 3, 19, 2};
    table.mnuEditCopy_Click();
    EXPECT_EQ(Fakes.clipboard.Text(),
              "Depth, ft\tSlope, ft/ft\r" + Spelled("1.900\t0.00100\r2.000\t0.00100"));

    Then<frmTableSettings>([](frmTableSettings& settings) {
      EXPECT_EQ(Boxes(settings), Spelled("0.000|2.000|0.100"));
      Type(settings.tbMin, "1.5");
      Type(settings.tbIncrement, "0.25");
      settings.cmdOK_Click();
    });
    table.mnuEditSettings_Click();
    EXPECT_EQ(grid.Rows(), 4);
    Then<frmTableSettings>([](frmTableSettings& settings) {
      EXPECT_EQ(Boxes(settings), Spelled("1.500|2.000|0.250"));
      settings.cbxVary.ListIndex = 1;
      settings.cmdCancel_Click();
    });
    table.mnuEditSettings_Click();
    EXPECT_EQ(grid.Text(3, 1), Spelled("91.7"));
    table.mnuFileExit_Click();
    EXPECT_FALSE(table.IsLoaded());
  });
}

TEST_P(RatingWindows, TheTableOfASectionHasDashes) {
  TypeSection(Vee, "105");
  OpenTable([](frmTable& table) {
    FlexGrid& grid = table.MSFlexGrid1;
    EXPECT_EQ(grid.Rows(), 21);
    EXPECT_EQ(grid.Text(0, 2) + grid.Text(0, 5) + grid.Text(0, 14), "WSEL, ftIrr.Geom.");
    EXPECT_EQ(grid.Text(1, 2) + grid.Text(1, 5) + grid.Text(1, 14), Spelled("100.250") + "--");
  });
}

TEST_P(RatingWindows, TheGraphPlotsNumbersUnderTheHeaders) {
  TypeRectangle();
  OpenGraph([this](frmGraph& graph) {
    const XYChart& chart = graph.MSChart1;
    EXPECT_EQ(graph.Caption.Get(), "Flumewise - Rectangular Channel");
    EXPECT_EQ(chart.XTitle.Get(), "Depth, ft");
    EXPECT_EQ(chart.YTitle.Get(), "Flow, cfs");
    EXPECT_EQ(chart.Rows().size(), 199U) << "0.01 two hundred times is beyond 2";
    EXPECT_EQ(chart.Rows()[0][0], 0.01);
    EXPECT_FALSE(graph.lblMarked.Visible);
    Fakes.clipboard.SetText("before");
    bool copied = false;
    graph.MSChart1.CopyView = [&] { copied = Fakes.clipboard.Text().empty(); };
    graph.mnuEditCopy_Click();
    EXPECT_TRUE(copied);
    Then<frmGraphSettings>([](frmGraphSettings& settings) {
      EXPECT_THAT(settings.cbxY.Items.Get(),
                  ElementsAre("Flow", "Velocity", "Velocity Head", "Area", "Wetted Perimeter",
                              "Hydraulic Radius", "Top Width", "Froude No.", "Critical Depth"));
      EXPECT_EQ(settings.cbxY.ListIndex, 0);
      settings.cbxY.ListIndex = 8;
      settings.cbxVary.ListIndex = 2;
      settings.cmdOK_Click();
    });
    graph.mnuEditSettings_Click();
    EXPECT_EQ(chart.XTitle.Get(), "n");
    EXPECT_EQ(chart.YTitle.Get(), "Crit.D., ft");
    EXPECT_THAT(RatingRange.RangeStep.Number(), testing::DoubleEq(0.04 / 200));
    Then<frmGraphSettings>([](frmGraphSettings& settings) {
      EXPECT_EQ(settings.cbxY.ListIndex, 8);
      EXPECT_EQ(settings.cbxVary.ListIndex, 2);
      Type(settings.tbMin, "2");
      Type(settings.tbMax, "3");
      settings.cmdOK_Click();
    });
    graph.mnuEditSettings_Click();
    EXPECT_THAT(chart.Rows(), IsEmpty()) << "no n above 1";
    EXPECT_EQ(chart.YTitle.Get(), "Crit.D., ft");
  });
}

TEST_P(RatingWindows, ARowWithoutANumberStaysEmpty) {
  TypePipe("48", "48");
  Type(Main.tbDepth, "4");
  Then<frmGraphSettings>([](frmGraphSettings& settings) {
    settings.cbxY.ListIndex = 7;
    Type(settings.tbMin, "3");
    Type(settings.tbMax, "4");
    settings.cmdOK_Click();
  });
  Then<frmGraph>([](frmGraph& graph) {
    const auto& rows = graph.MSChart1.Rows();
    EXPECT_EQ(rows.size(), 201U);  // added up: 3.9999999999999787
    EXPECT_THAT(rows.back(), ElementsAre(std::nullopt, std::nullopt)) << "a full pipe has no Froude number";
    EXPECT_TRUE(rows.front()[1].has_value());
  });
  Main.mnuSolveGraph_Click();
}

TEST_P(RatingWindows, TheGraphMarksWhereTheFlowFalls) {
  TypePipe("48", "4");
  OpenGraph([](frmGraph& graph) {
    const auto& rows = graph.MSChart1.Rows();
    ASSERT_EQ(graph.MSChart1.Marked.Get().size(), 1U);
    const ChartStretch marked = graph.MSChart1.Marked.Get()[0];
    // A pipe carries most at 0.938 of its diameter: 3.752 ft, between the steps of 0.02 ft.
    EXPECT_NEAR(*rows[static_cast<std::size_t>(marked.First)][0], 3.752, 0.011);
    EXPECT_EQ(marked.Last, static_cast<int>(rows.size()) - 1);
    EXPECT_TRUE(graph.lblMarked.Visible);
  });
}

class RatingExport : public RatingWindows {
 protected:
  RatingExport() { std::filesystem::create_directories(folder_); }
  ~RatingExport() override { std::filesystem::remove_all(folder_); }
  std::string Path(const char* name) { return (folder_ / name).string(); }
  static std::string Content(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::filesystem::path folder_ = std::filesystem::path(testing::TempDir()) / "flumewise-export";
};

TEST_P(RatingExport, TheTableIsWrittenUnrounded) {
  TypeRectangle();
  Declarations::FileTitle = "Mill race.fwd";
  Fakes.fileDialog.Choices = {Path("table.csv"), std::nullopt};
  OpenTable([](frmTable& table) {
    table.mnuFileExport_Click();
    table.mnuFileExport_Click();  // cancelled
  });
  EXPECT_EQ(Fakes.fileDialog.Requests[0].FileName, "Mill race.csv");
  EXPECT_TRUE(Fakes.fileDialog.Requests[0].Saving);
  const std::string csv = Content(Path("table.csv"));
  EXPECT_EQ(std::ranges::count(csv, '\n'), 21);
  EXPECT_THAT(csv, testing::StartsWith(GetParam() ? "Flow, cfs;Depth, ft;" : "\"Flow, cfs\",\"Depth, ft\","));
  const std::string lastRow = GetParam() ? ";2;0,001;0,013;10;" : ",2,0.001,0.013,10,";
  EXPECT_THAT(csv, HasSubstr(lastRow));
  EXPECT_THAT(csv, HasSubstr(Spelled("\r\n91.69586518817"))) << "A k/n R^(2/3) S^(1/2), to all digits";
}

TEST_P(RatingExport, AFailureIsToldAndLeavesNothing) {
  TypeRectangle();
  Fakes.fileDialog.Choices = {Path("missing/table.csv"), Path("graph.PNG"), Path("graph.PNG")};
  OpenTable([](frmTable& table) { table.mnuFileExport_Click(); });
  OpenGraph([](frmGraph& graph) {
    graph.mnuFileExport_Click();
    graph.MSChart1.PictureView = [](const std::string& extension) { return "picture as " + extension; };
    graph.mnuFileExport_Click();
  });
  ASSERT_EQ(Fakes.messageBox.Boxes.size(), 2U);
  for (const auto& box : Fakes.messageBox.Boxes) EXPECT_EQ(box.Title, "Flumewise");
  EXPECT_THAT(Fakes.messageBox.Boxes[0].Text, HasSubstr("Cannot write " + Path("missing/table.csv")));
  EXPECT_EQ(Content(Path("graph.PNG")), "picture as png");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_), {}), 1);
}

INSTANTIATE_LOCALES(RatingWindows);
INSTANTIATE_LOCALES(RatingExport);

}  // namespace

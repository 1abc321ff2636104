// The windows of table and graph where no conversation reaches: long series, marks, pictures and files.
#include <gmock/gmock.h>

#include <cmath>
#include <filesystem>

#include "app/Declarations.h"
#include "rating/frmGraph.h"
#include "rating/frmGraphSettings.h"
#include "rating/frmTable.h"
#include "rating/frmTableSettings.h"
#include "support/ProgramStage.h"
#include "support/TestFolder.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class RatingWindows : public ProgramStage {
 protected:
  template <class Settings>
  void ThenOK() {
    Screen.Then<Settings>([](Settings& settings) {
      EXPECT_TRUE(settings.cmdOK.Enabled);
      settings.cmdOK_Click();
    });
  }
  void OpenTable(const std::function<void(frmTable&)>& act) {
    ThenOK<frmTableSettings>();
    Screen.Then<frmTable>(act);
    Main.mnuSolveTable_Click();
  }
  void OpenGraph(const std::function<void(frmGraph&)>& act) {
    ThenOK<frmGraphSettings>();
    Screen.Then<frmGraph>(act);
    Main.mnuSolveGraph_Click();
  }
  std::string Path(const char* name) { return (folder_.Path() / name).string(); }

  TestFolder folder_;
};

TEST_P(RatingWindows, TheGraphPlotsTwoHundredStepsOnTheWay) {
  TypeRectangle();
  OpenGraph([this](frmGraph& graph) {
    const XYChart& chart = graph.MSChart1;
    EXPECT_EQ(chart.XTitle.Get() + "|" + chart.YTitle.Get(), "Depth, ft|Flow, cfs");
    EXPECT_EQ(chart.Rows().size(), 199U) << "0.01 two hundred times is beyond 2";
    EXPECT_EQ(chart.Rows()[0][0], 0.01);
    EXPECT_THAT(chart.Marked.Get(), IsEmpty());
    // Steps of 1.25 units in the last place are rounded down to 1: 251 points up to the end.
    Screen.Then<frmGraphSettings>([](frmGraphSettings& settings) {
      Type(settings.tbMin, "1");
      Type(settings.tbMax, PlainNumber(1 + 250 * 0x1p-52));
      settings.cmdOK_Click();
    });
    graph.mnuEditSettings_Click();
    EXPECT_EQ(chart.Rows().size(), 250U);
  });
}

TEST_P(RatingWindows, CopyingTheGraphEmptiesTheClipboardFirst) {
  TypeRectangle();
  Fakes.clipboard.SetText("before");
  bool copied = false;
  OpenGraph([&](frmGraph& graph) {
    graph.MSChart1.CopyView = [&] { copied = Fakes.clipboard.Text().empty(); };
    graph.mnuEditCopy_Click();
  });
  EXPECT_TRUE(copied);
}

TEST_P(RatingWindows, TheGraphMarksWhereTheFlowFalls) {
  TypePipe("48", "4");
  OpenGraph([](frmGraph& graph) {
    const auto& rows = graph.MSChart1.Rows();
    ASSERT_EQ(graph.MSChart1.Marked.Get().size(), 1U);
    const ChartSpan marked = graph.MSChart1.Marked.Get()[0];
    // A pipe carries most at 0.938 of its diameter: 3.752 ft, between the steps of 0.02 ft.
    EXPECT_NEAR(*rows[static_cast<std::size_t>(marked.First)][0], 3.752, 0.011);
    EXPECT_EQ(marked.Last, static_cast<int>(rows.size()) - 1);
    EXPECT_TRUE(graph.lblMarked.Visible);
  });
}

TEST_P(RatingWindows, TheGraphShowsProjectProblemAndCriticalDepth) {
  TypeRectangle();
  Main.tbProjName.Text = "Mill race";
  OpenGraph([this](frmGraph& graph) {
    const XYChart& chart = graph.MSChart1;
    EXPECT_THAT(chart.Heading,
                testing::ElementsAre("Mill race", "Rectangular Channel: b 10 ft, n " + Spelled("0.013") +
                                                      ", S " + Spelled("0.001")));
    ASSERT_TRUE(chart.Present);
    EXPECT_EQ(chart.Present->Text, Spelled("Depth 2.000 ft\nFlow 91.7 cfs"));
    EXPECT_NEAR(chart.Present->Y, 91.696, 0.001);
    ASSERT_EQ(chart.Curves.size(), 1U);
    EXPECT_EQ(chart.Curves[0].Name, "Critical Depth");
    EXPECT_TRUE(chart.Curves[0].Dashed);
    for (const XYChart::Row& point : chart.Curves[0].Points)
      ASSERT_NEAR(*point[0], std::cbrt(*point[1] * *point[1] / 100 / 32.174), 1e-4);
    graph.mnuViewSwap_Click();
    EXPECT_NEAR(chart.Present->X, 91.696, 0.001);
    EXPECT_EQ(chart.Present->Text, Spelled("Flow 91.7 cfs\nDepth 2.000 ft"));
    EXPECT_NEAR(*chart.Curves[0].Points.back()[1], 1.37, 0.01);
    graph.cbxY.ListIndex = 1;  // a velocity
    EXPECT_THAT(chart.Curves, IsEmpty());
    Type(graph.tbMax, "1.5");
    EXPECT_FALSE(chart.Present) << "it is beyond the range";
  });
}

TEST_P(RatingWindows, EachCurveOfAFamilyIsTheGraphOfItsValueAlone) {
  struct Case {
    MenuItem& Type;
    bool SolveForFlow;
    int Vary;
    const char* Last;
    int Family;
    TextBox& Box;
    std::vector<std::string> Values;  // the first is that of the problem
  };
  const Case cases[] = {{Main.mnuOptionsRect, true, 0, "3", 3, Main.tbBaseWidth, {"10", "8", "12.5"}},
                        {Main.mnuOptionsRect, false, 0, "40", 2, Main.tbMann, {"0.013", "0.011", "0.015"}},
                        {Main.mnuOptionsCircular, true, 0, "4", 2, Main.tbMann, {"0.013", "0.011", "0.015"}},
                        {Main.mnuOptionsCircular, false, 1, "0.1", 1, Main.tbFlow, {"40", "20", "30"}}};
  TypeRectangle();
  TypePipe("48", "3");
  for (const Case& each : cases) {
    SCOPED_TRACE(each.Type.Caption.Get() + each.Last);
    each.Type.Click();
    each.SolveForFlow ? Main.mnuSolveForFlow_Click() : Main.mnuSolveForDepth_Click();
    Type(each.SolveForFlow ? Main.tbDepth : Main.tbFlow, each.SolveForFlow ? "3" : "40");
    std::vector<XYChart::Curve> family;
    const auto draw = [&](const std::string& values) {
      XYChart::Curve own;
      OpenGraph([&](frmGraph& graph) {
        graph.cbxVary.ListIndex = each.Vary;
        Type(graph.tbMax, each.Last);
        if (!values.empty()) {
          graph.cbxFamily.ListIndex = each.Family;
          Type(graph.tbFamily, values);
          family = graph.MSChart1.Curves;
        }
        own.Points = graph.MSChart1.Rows();
        own.Marked = graph.MSChart1.Marked;
      });
      return own;
    };
    const XYChart::Curve alone = draw("");
    EXPECT_EQ(draw(each.Values[0] + ";" + each.Values[1] + "; " + each.Values[2]).Points, alone.Points);
    std::erase_if(family, [](const XYChart::Curve& curve) { return curve.Dashed; });
    ASSERT_EQ(family.size(), 2U) << "the problem's own is that of the rows";
    for (const std::size_t i : {1, 2}) {
      Type(each.Box, each.Values[i]);
      const XYChart::Curve single = draw("");
      EXPECT_THAT(family[i - 1].Name, HasSubstr(" = " + Spelled(each.Values[i])));
      EXPECT_EQ(family[i - 1].Points, single.Points);
      EXPECT_EQ(family[i - 1].Marked, single.Marked);
    }
    Type(each.Box, each.Values[0]);
  }
}

TEST_P(RatingWindows, TheTableIsWrittenUnrounded) {
  TypeRectangle();
  Declarations::FileTitle = "Mill race.fwd";
  Fakes.fileDialog.Choices = {Path("table.csv"), std::nullopt};
  OpenTable([](frmTable& table) {
    table.mnuFileExport_Click();
    table.mnuFileExport_Click();  // cancelled
  });
  EXPECT_EQ(Fakes.fileDialog.Requests[0].FileName, "Mill race.csv");
  EXPECT_TRUE(Fakes.fileDialog.Requests[0].Saving);
  const std::string csv = BytesOf(Path("table.csv"));
  EXPECT_EQ(std::ranges::count(csv, '\n'), 21);
  EXPECT_THAT(csv,
              testing::StartsWith(DecimalComma() ? "Flow, cfs;Depth, ft;" : "\"Flow, cfs\",\"Depth, ft\","));
  const std::string lastRow = DecimalComma() ? ";2;0,001;0,013;10;" : ",2,0.001,0.013,10,";
  EXPECT_THAT(csv, HasSubstr(lastRow));
  EXPECT_THAT(csv, HasSubstr(Spelled("\r\n91.69586518817"))) << "A k/n R^(2/3) S^(1/2), to all digits";
}

TEST_P(RatingWindows, ALongTableIsCancelledAsIfItHadNotBeenAsked) {
  TypeRectangle();
  const auto setSteps = [this](const std::string& step) {
    Screen.Then<frmTableSettings>([step](frmTableSettings& settings) {
      Type(settings.tbIncrement, step);
      settings.cmdOK_Click();
    });
  };
  const auto expectInputs = [] {
    EXPECT_EQ(ChannelState.Depth, EngineValue(2));
    EXPECT_EQ(ChannelState.Slope.Number(), 0.001);
  };
  Fakes.progress.CancelAt = 1500;
  setSteps("0.001");
  Main.mnuSolveTable_Click();  // no table opens
  EXPECT_THAT(Fakes.progress.Reports, testing::ElementsAre("Computing the rating curve 500/2001",
                                                           "Computing the rating curve 1000/2001",
                                                           "Computing the rating curve 1500/2001"));
  expectInputs();
  OpenTable([&](frmTable& table) {
    const RatingRangeRecord range = RatingRange;
    setSteps("0.0005");
    table.mnuEditSettings_Click();
    EXPECT_EQ(table.MSFlexGrid1.Rows(), 21);
    EXPECT_EQ(RatingRange.RangeStep, range.RangeStep);
    EXPECT_FALSE(RatingRange.RatingCancelled);
    expectInputs();
    Fakes.progress = {};
    setSteps("0.001");
    table.mnuEditSettings_Click();
    EXPECT_EQ(table.MSFlexGrid1.Rows(), 2001);
    EXPECT_EQ(Fakes.progress.Reports.back(), "Computing the rating curve 2001/2001") << "the display ends";
  });
}

TEST_P(RatingWindows, ASectionHasNoRoughnessOfItsOwnInTheFile) {
  Type(Main.tbMann, "0.05");
  TypeSection({{"0", "10", "0.03"}, {"10", "0", ""}, {"20", "10", ""}}, "5");
  Fakes.fileDialog.Choices = {Path("table.csv")};
  OpenTable([](frmTable& table) { table.mnuFileExport_Click(); });
  EXPECT_THAT(BytesOf(Path("table.csv")),
              HasSubstr(DecimalComma() ? "Slope, ft/ft;Vel., fps" : "\"Slope, ft/ft\",\"Vel., fps\""));
}

TEST_P(RatingWindows, AFailureToExportIsReportedAndLeavesNothing) {
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
  EXPECT_EQ(BytesOf(Path("graph.PNG")), "picture as png");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.Path()), {}), 1);
}

INSTANTIATE_LOCALES(RatingWindows);

}  // namespace

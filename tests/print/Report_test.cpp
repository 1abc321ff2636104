// The printed report, page by page. Positions by hand: lines of 12, 10 and 8 points are 276, 230 and 184
// twips high.
#include <gmock/gmock.h>

#include <functional>

#include "app/Declarations.h"
#include "print/PrintStage.h"

namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;

class Report : public PrintStage {
 protected:
  struct Row {
    const char* Label;
    TextBox frmMain::*Box;
    const char* Units[2];  ///< what stands behind the value, English and metric
  };

  /// Label and value of each row, a line below the other.
  Calls Rows(int top, const std::vector<Row>& rows) const {
    Calls calls;
    for (const Row& row : rows) {
      const std::string y = std::to_string(top);
      calls.push_back("text 1872 " + y + " " + row.Label);
      calls.push_back("text 4032 " + y + " " + (Main.*row.Box).Text.Get() +
                      row.Units[ChannelState.UnitsEorM]);
      top += 230;
    }
    return calls;
  }
  Calls Results(int top) const {
    const bool elevation = ChannelState.ChannelType == ChannelTypes::Irregular;
    return Rows(top, {{"Velocity", &frmMain::tbVelocity, {" fps", " m/s"}},
                      {"Velocity Head", &frmMain::tbVelHead, {" ft", " m"}},
                      {"Flow Area", &frmMain::tbArea, {" sf", " m^2"}},
                      {"Wetted Perimeter", &frmMain::tbWP, {" ft", " m"}},
                      {"Hydraulic Radius", &frmMain::tbHRad, {" ft", " m"}},
                      {"Top Width", &frmMain::tbTopW, {" ft", " m"}},
                      {"Froude Number", &frmMain::tbFroude, {"", ""}},
                      {elevation ? "Critical WSElev" : "Critical Depth", &frmMain::tbCritD, {" ft", " m"}},
                      {"Critical Slope", &frmMain::tbCritS, {" ft/ft", " m/m"}}});
  }

  static TypedPoint Point(int row) {
    return {std::to_string(10 * row), std::to_string(row % 7) + ".5", row == 1 ? "0.03" : ""};
  }
  /// A section of so many points, the water standing above the lowest.
  void TypePoints(int count) {
    std::vector<TypedPoint> points;
    for (int row = 1; row <= count; ++row) points.push_back(Point(row));
    TypeSection(points, "1.75");
  }

  static constexpr int Stops[] = {1872, 2592, 3312, 4032, 4752, 5472, 6192, 6912, 7632, 8352, 9072, 9792};
  Calls PointHeads(int y) const {
    Calls calls;
    for (int i = 0; i < 3 * groups_; ++i) {
      const char* const heads[] = {"Sta", "Elev", "n"};
      calls.push_back("text " + std::to_string(Stops[i]) + " " + std::to_string(y) + " " + heads[i % 3]);
    }
    return calls;
  }
  Calls Points(int top, int first, int last) const {
    Calls calls;
    for (int row = first; row <= last; ++row) {
      for (int column = 0; column < 3; ++column) {
        calls.push_back("text " + std::to_string(Stops[3 * ((row - first) % groups_) + column]) + " " +
                        std::to_string(top + 230 * ((row - first) / groups_)) + " " +
                        Spelled(Point(row)[static_cast<std::size_t>(column)]));
      }
    }
    return calls;
  }
  int groups_ = 4;  ///< points side by side
  const Calls Body = {"font Arial 10 False False False"};
  const std::vector<Row> SectionRows = {{"Flow", &frmMain::tbFlow, {" cfs", " m^3/s"}},
                                        {"WSElev", &frmMain::tbDepth, {" ft", " m"}},
                                        {"Slope", &frmMain::tbSlope, {" ft/ft", " m/m"}}};
};

TEST_P(Report, OfEachPrismAndThePipeInBothUnitSystems) {
  TypeRectangle();
  Type(Main.tbDiameter, "48");
  const Row flow{"Flow", &frmMain::tbFlow, {" cfs", " m^3/s"}};
  const Row depth{"Depth", &frmMain::tbDepth, {" ft", " m"}};
  const Row slope{"Slope", &frmMain::tbSlope, {" ft/ft", " m/m"}};
  const Row n{"Manning's n", &frmMain::tbMann, {"", ""}};
  const Row width{"Base Width", &frmMain::tbBaseWidth, {" ft", " m"}};
  const Row right{"Right Side Slope", &frmMain::tbSSR, {":1", ":1"}};
  const Row left{"Left Side Slope", &frmMain::tbSSL, {":1", ":1"}};
  const Row diameter{"Diameter", &frmMain::tbDiameter, {" in", " mm"}};
  struct Case {
    void (frmMain::*Select)();
    std::vector<Row> Inputs;
  };
  const std::vector<Case> cases = {
      {&frmMain::mnuOptionsCircular_Click, {flow, depth, slope, n, diameter}},
      {&frmMain::mnuOptionsRect_Click, {flow, depth, slope, n, width}},
      {&frmMain::mnuOptionsTrap_Click, {flow, depth, slope, n, width, right, left}},
      {&frmMain::mnuOptionsTriangular_Click, {flow, depth, slope, n, right, left}}};
  for (const bool metric : {false, true}) {
    if (metric) Main.mnuOptionsUnitsMetric_Click();
    for (const Case& each : cases) {
      Type(Main.tbBaseWidth, "10");
      std::invoke(each.Select, Main);
      if (ChannelState.ChannelType != ChannelTypes::Rectangular) {
        Type(Main.tbSSR, "2");
        Type(Main.tbSSL, "1.5");
      }
      ASSERT_TRUE(Main.mnuFilePrint.Enabled) << ChannelState.ChannelType;
      PrintReport();
      const int resultsTop = 2008 + 230 * static_cast<int>(each.Inputs.size() + 1);
      EXPECT_THAT(Paper.TakeCalls(), ElementsAreArray(Head() + Body + Rows(2008, each.Inputs) +
                                                      Results(resultsTop) + Foot() + Calls{"end"}));
    }
  }
  EXPECT_EQ(Fakes.printerDialog.Requests[0].Title, "Print");
  EXPECT_FALSE(Fakes.printerDialog.Requests[0].Landscape);
}

TEST_P(Report, OfASectionHasItsPointsInFours) {
  for (const int points : {2, 4, 5, 100}) {
    const int lines = (points + 3) / 4;
    TypePoints(points);
    for (const int height : {15840, 16838}) {
      UsePaper(12240, height);
      PrintReport();
      for (const FakePrinter::PrintedText& text : Paper.Texts) {
        EXPECT_TRUE(text.Y >= height - 1708 || text.Y + 230 <= height - 1808) << text.Text;
      }
      EXPECT_THAT(Paper.TakeCalls(),
                  ElementsAreArray(Head() + Body + Rows(2008, SectionRows) + PointHeads(2698) +
                                   Points(2928, 1, points) + Results(2928 + 230 * (lines + 1)) + Foot() +
                                   Calls{"end"}))
          << points;
    }
  }
}

TEST_P(Report, OfASectionHasAsManyPointsSideBySideAsThePaperIsWide) {
  TypePoints(7);
  // A5 upright, then papers on which the last group ends at the edge, and just beyond it.
  for (const auto& [width, groups] :
       {std::pair(8391, 3), {10512, 4}, {10511, 3}, {8352, 3}, {8351, 2}, {6192, 2}, {6191, 1}, {3000, 1}}) {
    UsePaper(width, 15840);
    groups_ = groups;
    PrintReport();
    const int lines = (7 + groups - 1) / groups;
    EXPECT_THAT(
        Paper.TakeCalls(),
        ElementsAreArray(Head() + Body + Rows(2008, SectionRows) + PointHeads(2698) + Points(2928, 1, 7) +
                         Results(2928 + 230 * (lines + 1)) + Foot() + Calls{"end"}))
        << width;
  }
}

TEST_P(Report, WhatFollowsALongNameStandsBelowItsSecondLine) {
  TypeRectangle();
  Main.tbProjName.Text = std::string(170, 'x');
  Declarations::FilePath = "/" + std::string(200, 'y');
  Paper.CharactersOfName = 100;
  PrintReport();
  EXPECT_EQ(Paper.Calls[1], "text 1152 1008 " + std::string(170, 'x'));
  EXPECT_EQ(Paper.Calls[2], "text 1152 1560 Manning's Equation - Rectangular Channel");
  EXPECT_EQ(Paper.Calls[4], "text 1872 2008 Flow");
  EXPECT_THAT(Paper.Calls, testing::Contains("text 1152 14132 /" + std::string(200, 'y') + "    2026-03-09"));
  EXPECT_THAT(Paper.Calls, testing::Contains(std::string("text 1152 14500 v") + VersionName));
}

TEST_P(Report, GoesOnOnAnotherPageWhereTheFooterIsInTheWay) {
  TypePoints(100);
  UsePaper(15840, 12240);  // the 9 results would end at 10978, the rule is at 10432
  PrintReport();
  ASSERT_EQ(Pages(), 2);
  EXPECT_THAT(Page(2), ElementsAreArray(Head() + Body + Results(2008) + Foot()));

  UsePaper(12240, 8000);  // the rule is at 6192: the 14th line of points ends at 6148
  PrintReport();
  ASSERT_EQ(Pages(), 3);
  EXPECT_THAT(Page(1), ElementsAreArray(Head() + Body + Rows(2008, SectionRows) + PointHeads(2698) +
                                        Points(2928, 1, 56) + Foot()));
  EXPECT_THAT(Page(2), ElementsAreArray(Head() + Body + PointHeads(2008) + Points(2238, 57, 100) + Foot()));
  EXPECT_THAT(Page(3), ElementsAreArray(Head() + Body + Results(2008) + Foot()));
}

TEST_P(Report, NamesTheProjectEvenWithoutAnInput) {
  Main.tbProjName.Text = "";
  Declarations::FilePath = "/home/me/Mill.fwd";
  All.Main.EnablePrint(true);
  PrintReport();
  EXPECT_EQ(Paper.Calls[1], "text 1152 1008 ");
  EXPECT_THAT(Paper.Calls, testing::Contains("text 1152 14132 /home/me/Mill.fwd    2026-03-09"));
}

TEST_P(Report, TellsWhenItCannotBePrinted) {
  TypeRectangle();
  Paper.Works = false;
  PrintReport();
  ASSERT_EQ(Fakes.messageBox.Boxes.size(), 1U);
  EXPECT_EQ(Fakes.messageBox.Boxes[0].Text, "The pages cannot be printed.");
}

TEST_P(Report, ThePreviewShowsWhatIsPrinted) {
  TypeRectangle();
  Main.mnuFilePrintPreview_Click();
  EXPECT_THAT(Paper.Calls, IsEmpty());
  PrintReport();
  EXPECT_EQ(Fakes.printerDialog.Screen.Calls, Paper.Calls);
}

INSTANTIATE_LOCALES(Report);

}  // namespace

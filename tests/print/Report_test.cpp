// The printed report, held to listings of its pages under tests/data/pages, whose numbers are spelled with
// ".". Lines of 12, 10 and 8 points are 276, 230 and 184 twips high.
#include <gmock/gmock.h>

#include <fstream>
#include <functional>

#include "app/Declarations.h"
#include "print/PrintStage.h"

namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;

class Report : public PrintStage {
 protected:
  /// Prints the report and compares it with the listing of that name.
  void ExpectPages(const std::string& name) {
    SCOPED_TRACE(name);
    Calls listed;
    std::ifstream file(PAGES "/" + name + ".txt");
    for (std::string line; std::getline(file, line);) {
      const bool version = line.ends_with("{version}");
      listed.push_back(version ? line.substr(0, line.find('{')) + "v" + VersionName
                               : Respelled(GetParam(), line));
    }
    PrintReport();
    EXPECT_THAT(Paper.Calls, ElementsAreArray(listed));
  }

  /// A section of so many points, the water standing above the lowest.
  void TypePoints(int count) {
    std::vector<TypedPoint> points;
    for (int row = 1; row <= count; ++row)
      points.push_back({std::to_string(10 * row), std::to_string(row % 7) + ".5", row == 1 ? "0.03" : ""});
    TypeSection(points, "1.75");
  }
};

TEST_P(Report, OfEachPrismAndThePipeInBothUnitSystems) {
  TypeRectangle();
  Type(Main.tbDiameter, "48");
  for (const char* const units : {"english", "metric"}) {
    if (units == std::string("metric")) Main.mnuOptionsUnitsMetric_Click();
    for (const auto& [name, select] : {std::pair("circular-", &frmMain::mnuOptionsCircular_Click),
                                       {"rectangular-", &frmMain::mnuOptionsRect_Click},
                                       {"trapezoidal-", &frmMain::mnuOptionsTrap_Click},
                                       {"triangular-", &frmMain::mnuOptionsTriangular_Click}}) {
      Type(Main.tbBaseWidth, "10");
      std::invoke(select, Main);
      if (select != &frmMain::mnuOptionsRect_Click) {
        Type(Main.tbSSR, "2");
        Type(Main.tbSSL, "1.5");
      }
      ExpectPages(name + std::string(units));
    }
  }
  EXPECT_EQ(Fakes.printerDialog.Requests[0].Title, "Print");
  EXPECT_FALSE(Fakes.printerDialog.Requests[0].Landscape);
}

TEST_P(Report, OfASectionHasItsPointsSideBySideAndGoesOnOnAnotherPage) {
  struct Case {
    const char* Name;
    int Points, Width, Height;  ///< of the paper
  };
  for (const Case& each : {Case{"section-5", 5, 12240, 15840}, Case{"section-100-a4", 100, 11906, 16838},
                           Case{"section-7-a5", 7, 8391, 11906},
                           // The 9 results would end at 10978, the rule is at 10432.
                           Case{"section-100-landscape", 100, 15840, 12240},
                           // The rule is at 6192: the 14th line of points ends at 6148.
                           Case{"section-100-low", 100, 12240, 8000}}) {
    TypePoints(each.Points);
    UsePaper(each.Width, each.Height);
    ExpectPages(each.Name);
  }
  // Papers on which the last group ends at the edge, and just beyond it.
  TypePoints(7);
  for (const auto& [width, groups] :
       {std::pair(10512, 4), {10511, 3}, {8352, 3}, {8351, 2}, {6192, 2}, {6191, 1}, {3000, 1}}) {
    UsePaper(width, 15840);
    PrintReport();
    EXPECT_EQ(std::ranges::count(Paper.Texts, "Sta", &FakePrinter::PrintedText::Text), groups) << width;
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

TEST_P(Report, NamesTheProjectEvenWithoutAnInput) {
  Main.tbProjName.Text = "";
  Declarations::FilePath = "/home/me/Mill.fwd";
  All.Main.EnablePrint(true);
  PrintReport();
  EXPECT_EQ(Paper.Calls[1], "text 1152 1008 ");
  EXPECT_THAT(Paper.Calls, testing::Contains("text 1152 14132 /home/me/Mill.fwd    2026-03-09"));
}

TEST_P(Report, ReportsThatItCannotBePrinted) {
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

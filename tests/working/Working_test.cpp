// The working of problems worked by hand, its window, its files and its pages.
#include "working/Working.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include "app/Declarations.h"
#include "engine/NumberText.h"
#include "support/ProgramStage.h"
#include "support/TestFolder.h"
#include "working/frmWorking.h"

namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using Values = std::map<std::string, std::string>;

class WorkingTest : public ProgramStage {
 protected:
  /// The value of each equation, by the symbol that it begins with.
  Values Equations() const {
    Values values;
    for (const WorkingLine& line : FormWorking(Main)) {
      if (line.Is == WorkingLine::Kind::Result || line.Is == WorkingLine::Kind::Fact)
        values[line.Parts.front()] = line.Parts.back();
    }
    return values;
  }

  /// The last cell of each row of the table with this first head.
  std::vector<std::string> LastCells(const std::string& head) const {
    std::vector<std::string> cells;
    bool inTable = false;
    for (const WorkingLine& line : FormWorking(Main)) {
      if (line.Is == WorkingLine::Kind::Head) inTable = line.Parts.front() == head;
      if (line.Is == WorkingLine::Kind::Row && inTable) cells.push_back(line.Parts.back());
    }
    return cells;
  }

  /// `hand` is a list such as "A = 20.000 sf; P = 14.000 ft".
  void ExpectEquations(const char* hand) const {
    const Values values = Equations();
    for (const std::string& equation : Split(hand, "; ")) {
      SCOPED_TRACE(equation);
      const std::size_t equals = equation.find(" = ");
      const std::string symbol = equation.substr(0, equals), value = equation.substr(equals + 3);
      ASSERT_TRUE(values.contains(symbol));
      // What a search found to 1e-6 ft may differ in its last decimal.
      if (symbol == "y" || symbol == "y_c" || symbol == "W_c" || symbol.starts_with("Alternate")) {
        EXPECT_NEAR(LeadingNumber(values.at(symbol)), LeadingNumber(Spelled(value)), 2e-6);
      } else {
        const std::size_t unit = std::min(value.find(' '), value.size());
        EXPECT_EQ(values.at(symbol), Spelled(value.substr(0, unit)) + value.substr(unit));
      }
    }
  }

  void ExpectCells(const std::string& head, const std::vector<std::string>& hand) const {
    std::vector<std::string> spelled(hand.size());
    std::ranges::transform(hand, spelled.begin(), Spelled);
    EXPECT_EQ(LastCells(head), spelled);
  }

  void SolveDepth(const std::string& flow) {
    Main.mnuSolveForDepth_Click();
    Type(Main.tbFlow, flow);
  }

  frmWorking& Window() { return dynamic_cast<frmWorking&>(*Screen.FormsBeside().back()); }
};

// The values of all problems: a separate computation with the formulas of the manual.
TEST_P(WorkingTest, MetricTriangleForDepth) {
  Main.mnuOptionsUnitsMetric_Click();
  Main.mnuOptionsTriangular.Click();
  Enter("tbSSL 2, tbSSR 3, tbMann 0.025, tbSlope 0.005");
  SolveDepth("2");
  ExpectEquations(
      "k = 1.000000 m^(1/3)/s (Manning's equation); y = 0.7549349 m; A = 1.4248 m^2; P = 4.0754 m; "
      "T = 3.7747 m; R = 0.34961 m; Q = 2.0000 m^3/s; V = 1.4037 m/s; h_v = 0.10046 m; Fr = 0.72958; "
      "Q / √g = 0.63866 m^(5/2); y_c = 0.6654844 m; A_c = 1.1072 m^2; P_c = 3.5925 m; T_c = 3.3274 m; "
      "R_c = 0.30819 m; S_c = 0.0097968 m/m; Hydraulic depth = 0.37747 m; Specific energy E = 0.85539 m; "
      "Alternate depth y_a = 0.5949439 m; Conveyance K = 28.284 m^3/s; "
      "Mean boundary shear τ = 17.135 N/m^2; Greatest boundary shear = 36.999 N/m^2; "
      "Section factor Z = 0.87538 m^(5/2); Reynolds number Re = 433,910");
  // 0.0097968 / 3.28084, as the box shows it.
  EXPECT_THAT(WorkingText(FormWorking(Main)), HasSubstr(": " + Spelled("0.0029861") + " m."));
}

TEST_P(WorkingTest, TrapezoidForDepth) {
  Main.mnuOptionsTrap.Click();
  Enter("tbBaseWidth 20, tbSSL 2, tbSSR 3, tbMann 0.025, tbSlope 0.0016");
  SolveDepth("400");
  ExpectEquations(
      "y = 3.280074 ft; Steps = 30; A = 92.499 sf; P = 37.707 ft; T = 36.400 ft; R = 2.4531 ft; "
      "Q = 400.00 cfs; V = 4.3244 fps; h_v = 0.29061 ft; Fr = 0.47825; y_c = 2.111044 ft; "
      "A_c = 53.362 sf; T_c = 30.555 ft; S_c = 0.0078415 ft/ft; "
      "Alternate depth y_a = 1.449236 ft; Conveyance K = 10,000 cfs; "
      "Mean boundary shear τ = 0.24492 lb/ft^2; Reynolds number Re = 871,660");
}

TEST_P(WorkingTest, PipeWithTwoDepths) {
  TypePipe("72", "3");
  SolveDepth("200");
  ExpectEquations(
      "D = 6.0000 ft; y = 5.296704 ft; A = 26.417 sf; P = 14.656 ft; T = 3.8601 ft; R = 1.8024 ft; "
      "V = 7.5708 fps; Fr = 0.51021; y_c = 3.865628 ft; A_c = 19.258 sf; S_c = 0.0039985 ft/ft; "
      "Alternate depth y_a = 2.955074 ft; Q_full = 189.39 cfs; "
      "Q_max = 203.73 cfs; y / D = 0.88278; Q / Q_max = 0.98171");
  EXPECT_NEAR(LeadingNumber(Equations()["y_2"]), 5.883473, 2e-6);
  ExpectCells("Input", {"4.6703 ft", "Overflow", "Overflow", "4.9562 ft", "4.6703 ft", "Overflow"});
}

TEST_P(WorkingTest, FullMetricPipe) {
  Main.mnuOptionsUnitsMetric_Click();
  TypePipe("1000", "1");
  ExpectEquations(
      "A = 0.78540 m^2; P = 3.1416 m; R = 0.25000 m; Q = 1.0722 m^3/s; V = 1.3652 m/s; y_c = 0.5943398 m; "
      "Specific energy E = 1.0950 m; Mean boundary shear τ = 4.9010 N/m^2; "
      "Greatest boundary shear = 19.604 N/m^2");
  const Values values = Equations();
  for (const char* const ofSurface : {"T", "Fr", "Hydraulic depth", "Section factor Z"}) {
    EXPECT_FALSE(values.contains(ofSurface)) << ofSurface;
  }
}

TEST_P(WorkingTest, SectionOfTwoN) {
  TypeSection({{"0", "4", "0.06"},
               {"1", "2", ""},
               {"20", "2", "0.03"},
               {"22", "0", ""},
               {"30", "0", ""},
               {"32", "2", "0.06"},
               {"49", "2", ""},
               {"50", "4", ""}},
              "3");
  ExpectEquations(
      "A = 68.500 sf; P = 51.893 ft; T = 49.000 ft; R = 1.3200 ft; K = 3,672.5 cfs; Q = 116.13 cfs; "
      "V = 1.6954 fps; h_v = 0.044669 ft; Fr = 0.25280; Q / √g = 20.474 ft^(5/2); W_c = 1.733854 ft; "
      "A_c = 16.877 sf; T_c = 11.468 ft; y = 3.0000 ft; Specific energy E = 3.0447 ft; "
      "Alternate water level W_a = 1.149379 ft; "
      "Mean boundary shear τ = 0.082370 lb/ft^2; Greatest boundary shear = 0.18720 lb/ft^2; "
      "Section factor Z = 80.991 ft^(5/2); Reynolds number Re = 183,890; Hydraulic depth = 1.3980 ft");
  ExpectCells("Points", {"12.605 %", "76.137 %", "11.258 %"});
  ExpectCells("Input", {"129.04 cfs", "105.58 cfs", "110.17 cfs", "121.80 cfs", "87.842 cfs", "148.32 cfs"});
}

TEST_P(WorkingTest, WithoutAResultItSaysWhatIsGivenAndWhyNothingFollows) {
  TypeRectangle();
  for (const auto& [typed, why] : {std::pair("", "must be greater than 0 and less than 1.\n"),
                                   {"2", "must be greater than 0 and less than 1.\n"},
                                   {"nan", "must be a number; "},
                                   {"-1e999", "is too large a number.\n"}}) {
    Type(Main.tbSlope, typed);
    const std::string text = WorkingText(FormWorking(Main));
    EXPECT_THAT(text, HasSubstr(std::string("Results\nSlope ") + why)) << typed;
    EXPECT_THAT(text, Not(ContainsRegex("nan|inf|= *\n")));
  }
  EXPECT_THAT(WorkingText(FormWorking(Main)), StartsWith("Given\nChannel type = Rectangular Channel\n"));
}

TEST_P(WorkingTest, NumbersFarFromAnyChannelLeaveNoLineWithoutANumber) {
  TypeRectangle();
  for (const char* const flow : {"1e-9", "1e-300", "1e-6", "1e9"}) {
    for (const char* const width : {"1e-9", "10", "1e100"}) {
      for (const char* const slope : {"1e-300", "0.9"}) {
        Main.mnuSolveForDepth_Click();
        Type(Main.tbFlow, flow);
        Type(Main.tbBaseWidth, width);
        Type(Main.tbSlope, slope);
        EXPECT_THAT(WorkingText(FormWorking(Main)), Not(ContainsRegex("nan|inf|= *\n"))) << flow << width;
      }
    }
  }
}

TEST_P(WorkingTest, TheWindowFollowsEveryKeystrokeWhileItIsOpen) {
  TypeRectangle();
  Main.mnuSolveWorking.Click();
  frmWorking& window = Window();
  EXPECT_THAT(window.pgWorking.Text, HasSubstr(Spelled("= 91.696 cfs\n")));
  EXPECT_EQ(Screen.Top(), &Main);
  Type(Main.tbDepth, "4");
  EXPECT_THAT(window.pgWorking.Text, HasSubstr(Spelled("A = b y = 10 × 4 = 40.000 sf\n")));
  EXPECT_THAT(window.pgWorking.Html.Get(),
              HasSubstr(Spelled("<p class=\"equation\">A = b y = 10 × 4 = <b>40.000 sf</b></p>")));
  EXPECT_THAT(window.pgWorking.Html.Get(), HasSubstr("A R<sup>2/3</sup> √S"));
  window.mnuFileExit.Click();
  const std::string before = window.pgWorking.Text;
  Type(Main.tbDepth, "3");
  EXPECT_EQ(window.pgWorking.Text, before) << "formed for nobody";
  Main.mnuSolveWorking.Click();
  EXPECT_NE(window.pgWorking.Text, before);
  Declarations::DataChanged = false;
  Main.Unload();
  EXPECT_FALSE(window.IsLoaded());
}

TEST_P(WorkingTest, ItIsCopiedAndWrittenToFiles) {
  TypeRectangle();
  Main.tbProjName.Text = "Mill & race";
  Main.mnuSolveWorking.Click();
  frmWorking& window = Window();
  window.mnuEditCopy.Click();
  EXPECT_EQ(Fakes.clipboard.Html, window.pgWorking.Html.Get());
  const TestFolder folder;
  Fakes.fileDialog.Choices = {(folder.Path() / "a.html").string(), (folder.Path() / "a.pdf").string()};
  window.mnuFileExport.Click();
  window.mnuFileExport.Click();
  EXPECT_THAT(BytesOf((folder.Path() / "a.html").string()),
              HasSubstr("<h1>Flumewise - Mill &amp; race</h1>"));
  EXPECT_THAT(BytesOf((folder.Path() / "a.pdf").string()), StartsWith("%PDF"));
}

TEST_P(WorkingTest, ItsPagesHaveTheHeadAndFootOfTheReportAndStayOnThePaper) {
  TypePipe("72", "3");
  SolveDepth("200");
  Main.mnuSolveWorking.Click();
  Window().mnuPrintPreview.Click();
  const FakePrinter& paper = Fakes.printerDialog.Screen;
  std::string all;
  for (const auto& text : paper.Texts) {
    EXPECT_LE(text.Y, paper.Height - 1440) << text.Text;
    EXPECT_LE(text.X + text.MaxWidth, paper.Width - 1872) << text.Text;
    all += text.Text + ' ';
  }
  EXPECT_EQ(std::ranges::count(paper.Calls, "newpage") + 1,
            std::ranges::count(paper.Calls, "text 1152 1284 Manning's Equation - Circular Channel"));
  // Broken between words, nothing lost.
  std::string text = Window().pgWorking.Text;
  for (const std::string_view line : {"V = Q / A = ", "and the greatest, 204 cfs. Between y = "})
    EXPECT_THAT(all, HasSubstr(line));
  EXPECT_THAT(paper.Calls.back(), "end");
}

TEST_P(WorkingTest, TheReportIsFollowedByTheWorkingForThoseWhoWantIt) {
  TypeRectangle();
  const auto printed = [this] {
    Fakes.printerDialog.Paper.TakeCalls();
    Fakes.printerDialog.Answers = {true};
    Main.mnuFilePrint.Click();
    return Fakes.printerDialog.Paper.Calls;
  };
  const auto report = printed();
  EXPECT_EQ(Fakes.printerDialog.Requests.back().Option, "With the working");
  EXPECT_EQ(std::ranges::count(report, "newpage"), 0);
  Fakes.printerDialog.Option = true;
  const auto both = printed();
  const auto page = std::ranges::find(both, "newpage");
  ASSERT_NE(page, both.end());
  // The report as it was but for the end of the document, then the working.
  EXPECT_TRUE(std::equal(both.begin(), page, report.begin(), report.end() - 1));
  EXPECT_NE(std::find(page, both.end(), "text 1152 2008 Given"), both.end());
}

TEST_P(WorkingTest, ResultsAreCopiedForALetterWithTheSlopeItselfAndThePoints) {
  TypeRectangle();
  Main.mnuOptionsUnitsMetric_Click();
  Main.tbProjName.Text = "Reach A_1";
  Main.mnuEditCopyResults_Click();
  EXPECT_THAT(Fakes.clipboard.Text(), HasSubstr("Project\t\tReach A_1\t"));
  EXPECT_THAT(Fakes.clipboard.Html, HasSubstr("<td>Reach A_1</td>"));
  EXPECT_THAT(Fakes.clipboard.Text(), HasSubstr(Spelled("Critical Slope\tSc\t0.00306\tm/m\t")));
  EXPECT_THAT(Fakes.clipboard.Text(), HasSubstr("\tm\u00B3/s\tFlow solved: subcritical\n"));
  EXPECT_THAT(Fakes.clipboard.Html, HasSubstr("<td>m<sup>2</sup></td>"));
  TypeSection({{"0", "4", "0.03"}, {"4", "0", ""}, {"8", "4", ""}}, "2");
  Main.mnuEditCopyResults_Click();
  EXPECT_THAT(Fakes.clipboard.Text(), HasSubstr("\nPoint\tStation, m\tElevation, m\tn\n1\t0\t4\t"));
}

INSTANTIATE_LOCALES(WorkingTest);

}  // namespace

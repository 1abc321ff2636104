// Table and graph agree with each other point by point, and with the main window when the value of a point is
// typed there: problems of every type in both modes and unit systems, drawn at random.
#include <cmath>
#include <random>

#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "rating/RatingSeries.h"
#include "rating/frmGraph.h"
#include "rating/frmGraphSettings.h"
#include "rating/frmTable.h"
#include "rating/frmTableSettings.h"
#include "support/ProgramStage.h"

namespace {

/// The result boxes of the main window by the table's columns; of flow and depth the one solved for.
struct ResultBox {
  int Column;
  TextBox frmMain::*Box;
};
constexpr ResultBox Results[] = {{6, &frmMain::tbVelocity}, {7, &frmMain::tbVelHead}, {8, &frmMain::tbArea},
                                 {9, &frmMain::tbWP},       {10, &frmMain::tbHRad},   {11, &frmMain::tbTopW},
                                 {12, &frmMain::tbFroude},  {13, &frmMain::tbCritD}};

class Agreement : public ProgramStage {
 protected:
  double Between(double low, double high) {
    return std::round(std::uniform_real_distribution<double>(low, high)(random_) * 10000) / 10000;
  }
  std::string Number(double low, double high) { return PlainNumber(Between(low, high)); }

  /// A problem of the type that `item` chooses, with an answer.
  void TypeProblem(MenuItem& item, bool solveForFlow) {
    const bool metric = ChannelState.UnitsEorM == Units::Metric;
    const double foot = metric ? 0.3 : 1;
    item.Click();
    Main.mnuSolveForFlow_Click();
    TypeSection({{"0", "12.5", "0.06"},
                 {"8", "3", ""},
                 {"11.5", "0", "0.03"},
                 {"15", "0.25", ""},
                 {"21", "3", "0.05"},
                 {"40", "13", ""}},
                Number(3, 7));
    item.Click();
    Type(Main.tbMann, Number(0.01, 0.06));
    Type(Main.tbSlope, Number(0.0005, 0.03));
    Type(Main.tbBaseWidth, &item == &Main.mnuOptionsTriangular ? "0" : Number(2 * foot, 20 * foot));
    Type(Main.tbSSL, &item == &Main.mnuOptionsRect ? "0" : Number(0.5, 4));
    Type(Main.tbSSR, &item == &Main.mnuOptionsRect ? "0" : Number(0.5, 4));
    Type(Main.tbDiameter, Number(metric ? 1000 : 40, metric ? 3000 : 100));
    if (&item != &Main.mnuOptionsIrreg) Type(Main.tbDepth, Number(foot, 2.8 * foot));
    if (solveForFlow) return;
    const double flow = ChannelState.Flow.Number() / UnitFactor(ChannelState.UnitsEorM, Units::Flow);
    Main.mnuSolveForDepth_Click();
    Type(Main.tbFlow, PlainNumber(flow));
  }

  /// Chooses the input at this line of the list and a range whose points are no halves of a last digit, which
  /// a last bit would round either way. Returns a step of one two-hundredth.
  static double ChooseRange(RangeSettings& settings, int line) {
    settings.cbxVary.ListIndex = line;
    const double first = LeadingNumber(Text(settings.tbMin));
    const double last = LeadingNumber(Text(settings.tbMax)) * 0.98712345;
    Type(settings.tbMax, PlainNumber(last));
    return (last - first) / 200;
  }

  using Grid = std::vector<std::vector<std::string>>;
  /// The table of the input at this line of the list, in as many steps as the graph has.
  Grid Table(int line) {
    Grid rows;
    Screen.Then<frmTableSettings>([=](frmTableSettings& settings) {
      Type(settings.tbIncrement, PlainNumber(ChooseRange(settings, line)));
      settings.cmdOK_Click();
    });
    Screen.Then<frmTable>([&](frmTable& table) {
      for (int row = 1; row < table.MSFlexGrid1.Rows(); ++row) {
        rows.emplace_back();
        for (int column = 0; column < 15; ++column)
          rows.back().push_back(table.MSFlexGrid1.Text(row, column));
      }
    });
    Main.mnuSolveTable_Click();
    return rows;
  }

  std::vector<XYChart::Row> Graph(int line, int plotted) {
    std::vector<XYChart::Row> rows;
    Screen.Then<frmGraphSettings>([=](frmGraphSettings& settings) {
      ChooseRange(settings, line);
      settings.cbxY.ListIndex = plotted;
      settings.cmdOK_Click();
    });
    Screen.Then<frmGraph>([&](frmGraph& graph) { rows = graph.MSChart1.Rows(); });
    Main.mnuSolveGraph_Click();
    return rows;
  }

  static std::string Shown(const std::optional<double>& value, int column) {
    return value ? ShownNumber(*value, Units::Dimensionless, column == 2 || column == 13) : "";
  }

  void ExpectSameCurve(const Grid& table, int line, int plotted, int column) {
    const auto graph = Graph(line, plotted);
    const int varied = FindVariedInput(RatingRange.VaryCode)->Column;
    ASSERT_LE(table.size() - graph.size(), 1U) << "the table alone snaps to the last point";
    for (std::size_t i = 0; i < graph.size(); ++i) {
      ASSERT_EQ(Shown(graph[i][1], column), table[i][static_cast<std::size_t>(column)]);
      if (!graph[i][0]) continue;
      ASSERT_EQ(Shown(graph[i][0], varied), table[i][static_cast<std::size_t>(varied)]);
    }
  }

  void ExpectSameAsTyped(const Grid& table, int line) {
    const auto graph = Graph(line, 0);
    TextBox* const boxes[] = {nullptr, &Main.tbDepth, &Main.tbFlow,      &Main.tbSlope, &Main.tbDiameter,
                              nullptr, nullptr,       &Main.tbBaseWidth, &Main.tbMann};
    TextBox& box = *boxes[RatingRange.VaryCode];
    const std::string before = box.Text;
    for (std::size_t i = 0; i < graph.size(); i += 1 + random_() % 60) {
      Type(box, PlainNumber(*graph[i][0]));
      const auto& row = table[i];
      const bool solveForFlow = ChannelState.SolveForFlow;
      EXPECT_EQ(Text(solveForFlow ? Main.tbFlow : Main.tbDepth), row[solveForFlow ? 1 : 2]);
      for (const ResultBox& each : Results) {
        EXPECT_EQ(Text(Main.*each.Box), row[static_cast<std::size_t>(each.Column)]) << each.Column;
      }
      if (ChannelState.ChannelType == ChannelTypes::Irregular) continue;
      // In metric the box has the slope divided by a length; its tool tip gives the slope.
      const std::string& tip = Main.tbCritS.ToolTip;
      EXPECT_EQ(tip.empty() ? Text(Main.tbCritS)
                            : tip.substr(tip.find(':') + 2, tip.rfind(' ') - tip.find(':') - 2),
                row[14]);
    }
    box.Text = before;
  }

  std::mt19937 random_{20261121};
};

TEST_P(Agreement, OfTableGraphAndSingleSolutions) {
  int tables = 0;
  for (MenuItem* const units : {&Main.mnuOptionsUnitsEnglish, &Main.mnuOptionsUnitsMetric}) {
    units->Click();
    for (MenuItem* const type : {&Main.mnuOptionsRect, &Main.mnuOptionsTriangular, &Main.mnuOptionsTrap,
                                 &Main.mnuOptionsCircular, &Main.mnuOptionsIrreg}) {
      for (const bool solveForFlow : {true, false}) {
        TypeProblem(*type, solveForFlow);
        SCOPED_TRACE(type->Caption.Get() + (solveForFlow ? ", flow " : ", depth ") + Text(Main.tbDepth));
        ASSERT_TRUE(Main.mnuSolveTable.Enabled);
        const int lines = type == &Main.mnuOptionsIrreg ? 2 : type == &Main.mnuOptionsTriangular ? 3 : 4;
        for (int line = 0; line < lines; ++line) {
          const Grid table = Table(line);
          ASSERT_GT(table.size(), 10U);
          ExpectSameCurve(table, line, 0, solveForFlow ? 1 : 2);
          for (int plotted = 1; plotted <= 8; ++plotted) ExpectSameCurve(table, line, plotted, plotted + 5);
          ExpectSameAsTyped(table, line);
          ++tables;
        }
      }
    }
  }
  EXPECT_EQ(tables, 2 * 2 * (4 + 3 + 4 + 4 + 2));
}

INSTANTIATE_LOCALES(Agreement);

}  // namespace

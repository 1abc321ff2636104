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

class Agreement : public ProgramStage {
 protected:
  std::string Number(double low, double high) {
    const double number = std::uniform_real_distribution<double>(low, high)(random_);
    return PlainNumber(std::round(number * 10000) / 10000);
  }

  /// A problem of the type that `item` chooses, with an answer.
  void TypeProblem(MenuItem& item, bool solveForFlow) {
    const bool metric = ChannelState.UnitsEorM == Units::Metric;
    const double foot = metric ? 0.3 : 1;
    TypeSection({{"0", "12.5", "0.06"},
                 {"8", "3", ""},
                 {"11.5", "0", "0.03"},
                 {"15", "0.25", ""},
                 {"21", "3", "0.05"},
                 {"40", "13", ""}},
                Number(3, 7));
    Type(Main.tbMann, Number(0.01, 0.06));
    Type(Main.tbSlope, Number(0.0005, 0.03));
    Type(Main.tbBaseWidth, Number(2 * foot, 20 * foot));
    Type(Main.tbSSL, Number(0.5, 4));
    Type(Main.tbSSR, Number(0.5, 4));
    Type(Main.tbDiameter, Number(metric ? 1000 : 40, metric ? 3000 : 100));
    item.Click();
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

  /// The results that the main window shows now are those of the row.
  void ExpectShown(const std::vector<std::string>& row) {
    EXPECT_EQ(Text(ChannelState.SolveForFlow ? Main.tbFlow : Main.tbDepth),
              row[ChannelState.SolveForFlow ? 1 : 2]);
    std::size_t column = 6;
    for (const TextBox* const box : {&Main.tbVelocity, &Main.tbVelHead, &Main.tbArea, &Main.tbWP,
                                     &Main.tbHRad, &Main.tbTopW, &Main.tbFroude, &Main.tbCritD}) {
      EXPECT_EQ(Text(*box), row[column]) << column;
      ++column;
    }
    if (ChannelState.ChannelType == ChannelTypes::Irregular) return;
    // In metric the box has the slope divided by a length; its tool tip gives the slope.
    const std::string& tips = Main.tbCritS.ToolTip;
    const std::string tip = tips.substr(0, tips.find('\n'));
    EXPECT_EQ(
        tip.empty() ? Text(Main.tbCritS) : tip.substr(tip.find(':') + 2, tip.rfind(' ') - tip.find(':') - 2),
        row[14]);
  }

  /// The input at this line of the list is varied; any one result is plotted, and some points are typed.
  void ExpectAgreement(int line) {
    const Grid table = Table(line);
    ASSERT_GT(table.size(), 10U);
    const int plotted = static_cast<int>(random_() % 9);
    const auto graph = Graph(line, plotted);
    ASSERT_LE(table.size() - graph.size(), 1U) << "the table alone snaps to the last point";
    const int column = plotted > 0 ? plotted + 5 : ChannelState.SolveForFlow ? 1 : 2;
    const int varied = FindVariedInput(RatingRange.VaryCode)->RatingColumn;
    TextBox* const boxes[] = {nullptr, &Main.tbDepth, &Main.tbFlow,      &Main.tbSlope, &Main.tbDiameter,
                              nullptr, nullptr,       &Main.tbBaseWidth, &Main.tbMann};
    TextBox& box = *boxes[RatingRange.VaryCode];
    const std::string before = box.Text;
    for (std::size_t i = 0; i < graph.size(); ++i) {
      ASSERT_EQ(Shown(graph[i][1], column), table[i][static_cast<std::size_t>(column)]);
      if (!graph[i][0]) continue;
      ASSERT_EQ(Shown(graph[i][0], varied), table[i][static_cast<std::size_t>(varied)]);
      if (i > 0 && random_() % 20 > 0) continue;
      Type(box, PlainNumber(*graph[i][0]));
      ExpectShown(table[i]);
    }
    box.Text = before;
  }

  std::mt19937 random_{20261121};
};

TEST_P(Agreement, OfTableGraphAndSingleSolutions) {
  for (MenuItem* const units : {&Main.mnuOptionsUnitsEnglish, &Main.mnuOptionsUnitsMetric}) {
    units->Click();
    for (const auto& [type, inputs] : {std::pair(&Main.mnuOptionsRect, 4),
                                       {&Main.mnuOptionsTriangular, 3},
                                       {&Main.mnuOptionsTrap, 4},
                                       {&Main.mnuOptionsCircular, 4},
                                       {&Main.mnuOptionsIrreg, 2}}) {
      for (const bool solveForFlow : {true, false}) {
        TypeProblem(*type, solveForFlow);
        SCOPED_TRACE(type->Caption.Get() + (solveForFlow ? ", flow " : ", depth ") + Text(Main.tbDepth));
        ASSERT_TRUE(Main.mnuSolveTable.Enabled);
        for (int line = 0; line < inputs; ++line) ExpectAgreement(line);
      }
    }
  }
}

INSTANTIATE_LOCALES(Agreement);

}  // namespace

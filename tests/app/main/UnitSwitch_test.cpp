// Switching the unit system and back: nothing typed is lost, whatever was typed. Numbers are drawn at random.
#include <algorithm>
#include <cmath>
#include <random>

#include "app/Units.h"
#include "support/ProgramStage.h"

namespace {

class UnitSwitch : public ProgramStage {
 protected:
  /// Of many magnitudes, with up to `decimals` decimals, not 0.
  double Draw(double least, double most, int decimals) {
    const double x =
        std::exp(std::uniform_real_distribution<double>(std::log(least), std::log(most))(random_));
    const double digit = std::pow(10, -static_cast<int>(random_() % static_cast<unsigned>(decimals + 1)));
    return std::max(std::round(x / digit), 1.0) * digit;
  }

  /// Into the other system, or back.
  void Switch() {
    (ChannelState.UnitsEorM == Units::English ? Main.mnuOptionsUnitsMetric : Main.mnuOptionsUnitsEnglish)
        .Click();
  }

  static double NumberIn(const TextBox& box) { return NumericValue(Text(box)).value(); }
  static double Station(int row) {
    return ChannelState.IrregPoints[static_cast<std::size_t>(row)][1].Number();
  }
  static double Elevation(int row) {
    return ChannelState.IrregPoints[static_cast<std::size_t>(row)][2].Number();
  }

  std::mt19937 random_{20261121};
};

TEST_P(UnitSwitch, LeavesNoNumberZeroAndMovesNoneByMoreThanItsRounding) {
  Main.mnuOptionsTrap_Click();
  for (int i = 0; i < 300; ++i) {
    Type(Main.tbFlow, PlainNumber(Draw(1e-7, 1e7, 9)));
    Type(Main.tbBaseWidth, PlainNumber(Draw(1e-5, 1e4, 7)));
    const double flow = NumberIn(Main.tbFlow);
    const double width = NumberIn(Main.tbBaseWidth);
    const bool toMetric = ChannelState.UnitsEorM == Units::English;
    Switch();
    const double exactFlow = toMetric ? flow / 35.31467 : flow * 35.31467;
    const double exactWidth = toMetric ? width / 3.28084 : width * 3.28084;
    EXPECT_GT(NumberIn(Main.tbFlow), 0);
    EXPECT_GT(NumberIn(Main.tbBaseWidth), 0);
    EXPECT_NEAR(NumberIn(Main.tbFlow), exactFlow, (toMetric ? 0.0005 : 0.05) * (1 + 1e-9));
    EXPECT_NEAR(NumberIn(Main.tbBaseWidth), exactWidth, (toMetric ? 0.0005 : 0.005) * (1 + 1e-9));
  }
}

TEST_P(UnitSwitch, KeepsAPipeFullAndADepthBelowTheCrown) {
  for (int i = 0; i < 400; ++i) {
    const bool metric = ChannelState.UnitsEorM == Units::Metric;
    const double diameter = Draw(metric ? 2 : 0.1, metric ? 5000 : 200, 3);
    const double crown = metric ? diameter / 1000 : diameter / 12;
    const bool full = random_() % 3 == 0;
    const double part = std::uniform_real_distribution<double>(0.9, 1)(random_);
    TypePipe(PlainNumber(diameter), PlainNumber(full ? crown : part * crown));
    for (int times = 0; times < 2; ++times) {
      SCOPED_TRACE(Text(Main.tbDiameter) + ", " + Text(Main.tbDepth));
      ASSERT_NE(Text(Main.tbFlow), "Overflow");
      ASSERT_TRUE(!full || ChannelState.Depth == ChannelState.Diameter);
      Switch();
    }
  }
}

TEST_P(UnitSwitch, KeepsStationsAscendingAndTheLevelBetween) {
  for (int i = 0; i < 60; ++i) {
    std::vector<TypedPoint> points;
    double station = std::round(Draw(0.1, 1e4, 2) * 100) / 100;
    const double datum = std::round(Draw(1, 3000, 2) * 100) / 100;
    for (int row = 0; row < 12; ++row) {
      points.push_back(
          {PlainNumber(station), PlainNumber(datum + Draw(1e-4, 0.02, 5)), row == 0 ? "0.03" : ""});
      station += Draw(1e-4, 0.1, 5);
    }
    const auto elevation = [](const TypedPoint& point) { return LeadingNumber(Spelled(point[1])); };
    const double lowest = elevation(std::ranges::min(points, {}, elevation));
    const double highest = elevation(std::ranges::max(points, {}, elevation));
    if (lowest == highest) continue;
    TypeSection(points, PlainNumber(lowest + (highest - lowest) * 0.3));
    for (int times = 0; times < 3; ++times) {
      SCOPED_TRACE(Text(Main.tbDepth));
      const double level = NumberIn(Main.tbDepth);
      int above = 0, below = 0;
      for (int row = 1; row <= 12; ++row) {
        ASSERT_TRUE(row == 1 || Station(row) > Station(row - 1)) << row;
        above += Elevation(row) > level;
        below += Elevation(row) < level;
      }
      ASSERT_TRUE(above > 0 && below > 0);
      Switch();
    }
  }
}

TEST_P(UnitSwitch, APointThatTheEditorRefusesComputesNothingAndIsNamed) {
  const auto expect = [this](const TypedPoint& second, const std::string& why) {
    TypeSection({{"0", "10", "0.03"}, second, {"20", "10", ""}}, "5");
    EXPECT_EQ(Main.lblStatus.Caption.Get(), why);
    EXPECT_EQ(Text(Main.tbArea), "");
  };
  expect({"x", "0", ""}, "Point 2: Station must be a number");
  expect({"1e999", "0", ""}, "Point 2: Station is too large a number");
  expect({"0", "0", ""}, "Point 2: Station must be greater than the one before");
  expect({"20", "0", ""}, "Point 3: Station must be greater than the one before");
  expect({"10", "", ""}, "Point 2: Elevation must be a number");
  expect({"10", "0", "0"}, "Point 2: Manning's n must be greater than 0");
  TypeSection({{"0", "10", "0.03"}, {"10", "0", ""}, {"20", "10", ""}}, "5");
  EXPECT_EQ(Text(Main.tbArea), Spelled("25.0"));
}

INSTANTIATE_LOCALES(UnitSwitch);

}  // namespace

// The series: which points it visits, which it keeps, and what it leaves behind.
#include <gmock/gmock.h>

#include <cmath>
#include <stdexcept>

#include "app/Units.h"
#include "engine/EngineFault.h"
#include "rating/RatingSeries.h"
#include "support/ProgramStage.h"

namespace {

using testing::DoubleEq;
using testing::ElementsAre;
using testing::IsEmpty;
using Values = std::vector<double>;

class Series : public ProgramStage {
 protected:
  static RatingRangeRecord Range(int varyCode, double first, double last, double step) {
    return {varyCode, 1, first, last, step, false};
  }
  /// The varied values of the rows, in feet and seconds.
  Values Kept(const RatingRangeRecord& range, LastValue lastValue = LastValue::Snapped) {
    Values kept;
    RunRatingSeries(Main, range, lastValue, [&](int row) {
      const Field* const input = FindVariedInput(range.VaryCode);
      kept.push_back(input == nullptr ? row : (ChannelState.*input->Cell).Number());
      EXPECT_EQ(row, static_cast<int>(kept.size()));
    });
    return kept;
  }
};

TEST_P(Series, KeepsThePointsThatTheInputAllows) {
  TypeRectangle();
  EXPECT_THAT(Kept(Range(Units::Length, -1, 2, 1)), ElementsAre(1, 2));
  EXPECT_THAT(Kept(Range(Units::Slope, 0, 1.5, 0.5)), ElementsAre(0.5, 1)) << "a slope of 1 counts";
  EXPECT_THAT(Kept(Range(Units::Dimensionless, 0, 1.5, 0.5)), ElementsAre(0.5, 1));
  EXPECT_THAT(Kept(Range(Units::BaseWidth, -5, 10, 5)), ElementsAre(5, 10)) << "no channel without width";
  EXPECT_THAT(Kept(Range(Units::Area, 1, 3, 1)), ElementsAre(1, 2, 3)) << "nothing varied, rows all the same";
  Main.mnuOptionsTrap_Click();
  Type(Main.tbSSL, "2");
  Type(Main.tbSSR, "2");
  EXPECT_THAT(Kept(Range(Units::BaseWidth, -5, 10, 5)), ElementsAre(0, 5, 10)) << "a triangle";
  Main.mnuSolveForDepth_Click();
  Type(Main.tbFlow, "100");
  EXPECT_THAT(Kept(Range(Units::Flow, -50, 100, 50)), ElementsAre(50, 100));
  EXPECT_THAT(Kept(Range(Units::Flow, 1e8, 2e9, 1.9e9)), ElementsAre(1e8)) << "no depth carries 2e9 cfs";
}

TEST_P(Series, KeepsThePointsThatPipeAndSectionAllow) {
  TypePipe("48", "3");
  EXPECT_THAT(Kept(Range(Units::Length, 0, 6, 1)), ElementsAre(1, 2, 3, 4));
  EXPECT_THAT(Kept(Range(Units::Diameter, -1, 5, 1)), ElementsAre(3, 4, 5));
  Main.mnuSolveForDepth_Click();
  Type(Main.tbFlow, "5");
  EXPECT_THAT(Kept(Range(Units::Diameter, 0, 3, 1)), ElementsAre(2, 3)) << "1 ft is too small for 5 cfs";
  TypeSection({{"0", "110", "0.03"}, {"10", "100", ""}, {"20", "110", ""}}, "105");
  EXPECT_THAT(Kept(Range(Units::Length, 99, 102, 1)), ElementsAre(101, 102));
  EXPECT_THAT(Kept(Range(Units::Dimensionless, 0, 4, 2)), ElementsAre(0, 2, 4)) << "n lies in the points";
}

TEST_P(Series, SnapsOnceWhereItMay) {
  TypeRectangle();
  // 0.1 added twenty times is 2.0000000000000004.
  EXPECT_EQ(Kept(Range(Units::Length, 0, 2, 0.1)).size(), 20U);
  EXPECT_EQ(Kept(Range(Units::Length, 0, 2, 0.1)).back(), 2.0);
  EXPECT_EQ(Kept(Range(Units::Length, 0, 2, 0.1), LastValue::AsStepped).size(), 19U);
  EXPECT_THAT(Kept(Range(Units::Length, 0, 2, 0.75)), ElementsAre(0.75, 1.5));
  // Within 1e-10 ft of the end every step would snap again.
  EXPECT_THAT(Kept(Range(Units::Length, 1, 1 + 5e-11, 1e-11)), ElementsAre(1, 1 + 5e-11));
}

TEST_P(Series, EndsWhereAStepMovesNothing) {
  TypeRectangle();
  EXPECT_EQ(Kept(Range(Units::Area, 1e16, 1e16 + 10, 1)).size(), 1U);
  EXPECT_EQ(Kept(Range(Units::Area, 1, 2, 0)).size(), 1U);
  EXPECT_EQ(Kept(Range(Units::Area, 1, HUGE_VAL, HUGE_VAL)).size(), 2U);
  EXPECT_THAT(Kept(Range(Units::Length, 3, 2, 0.1)), IsEmpty());
}

TEST_P(Series, LeavesTheInputsAsTyped) {
  Main.mnuOptionsUnitsMetric_Click();
  TypePipe("1000", "0.4");
  const auto expectInputs = [] {
    EXPECT_THAT(ChannelState.Depth.Number(), DoubleEq(0.4 * 3.28084));
    EXPECT_THAT(ChannelState.Diameter.Number(), DoubleEq(3.28084));
    EXPECT_EQ(ChannelState.Slope.Number(), 0.002);
    EXPECT_EQ(ChannelState.ManningN.Number(), 0.013);
  };
  for (const int code : {Units::Length, Units::Slope, Units::Dimensionless, Units::Diameter}) {
    Kept(Range(code, 1.5, 3, 0.5));
    expectInputs();
  }
  const auto range = Range(Units::Length, 1, 3, 1);
  EXPECT_THROW(RunRatingSeries(Main, range, LastValue::Snapped, [](int) { throw std::logic_error("full"); }),
               std::logic_error);
  expectInputs();
  Values stored;
  RunRatingSeries(Main, range, LastValue::Snapped, [&](int row) {
    if (ChannelState.Depth == EngineValue(2)) ThrowFault("too large to show");
    stored.push_back(row);
  });
  EXPECT_THAT(stored, ElementsAre(1, 2)) << "the middle point has no row";
  expectInputs();
}

TEST_P(Series, APipeTypedFullIsFullAtEveryPoint) {
  Main.mnuOptionsUnitsMetric_Click();
  for (int millimetres = 100; millimetres <= 2000; millimetres += 100) {
    TypePipe(std::to_string(millimetres), PlainNumber(millimetres / 1000.0));
    const double depth = millimetres / 1000.0 * 3.28084;
    Values widths;
    for (const auto& range : {Range(Units::Length, depth, depth, 1), Range(Units::Slope, 0.01, 0.02, 0.01),
                              Range(Units::Diameter, millimetres * 0.00328084, depth + 0.5, 1)}) {
      RunRatingSeries(Main, range, LastValue::Snapped,
                      [&](int) { widths.push_back(ChannelState.TopWidth.Number()); });
    }
    EXPECT_THAT(widths, ElementsAre(0, 0, 0, 0)) << millimetres;
  }
}

INSTANTIATE_LOCALES(Series);

}  // namespace

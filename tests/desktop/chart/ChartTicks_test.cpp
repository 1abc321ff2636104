// The numbers on the axes of a chart are round, few enough, and spelled as the boxes spell them.
#include "desktop/chart/ChartTicks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "engine/NumberText.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ChartTicks, RoundNumbersOfALinearAxis) {
  EXPECT_THAT(LinearTicks(0, 36.4, 8).Labels, ElementsAre("0", "5", "10", "15", "20", "25", "30", "35"));
  EXPECT_THAT(LinearTicks(0, 2.17, 5).Labels, ElementsAre("0.0", "0.5", "1.0", "1.5", "2.0"));
  EXPECT_THAT(LinearTicks(-0.3, 0.3, 3).Labels, ElementsAre("-0.2", "0.0", "0.2"));
  EXPECT_THAT(LinearTicks(400.1, 401.6, 3).Labels, ElementsAre("400.5", "401.0", "401.5"));
  EXPECT_THAT(LinearTicks(100, 100.0007, 4).Labels,
              ElementsAre("100.0000", "100.0002", "100.0004", "100.0006"));
  EXPECT_THAT(LinearTicks(0, 2.1e6, 2).Labels, ElementsAre("0", "2,000,000"));
}

TEST(ChartTicks, VeryLargeAndSmallNumbersHaveAnExponent) {
  EXPECT_THAT(LinearTicks(0, 3e7, 3).Labels, ElementsAre("0", "1e7", "2e7", "3e7"));
  EXPECT_THAT(LinearTicks(0, 3e-5, 3).Labels, ElementsAre("0", "1e-5", "2e-5", "3e-5"));
  EXPECT_THAT(LinearTicks(9e7, 1.1e8, 4).Labels, ElementsAre("9.0e7", "9.5e7", "1.00e8", "1.05e8", "1.10e8"));
}

TEST(ChartTicks, ALogarithmicAxisHasPowersOfTenWhileTheyAreEnough) {
  EXPECT_THAT(LogarithmicTicks(0.001, 1000, 10).Labels,
              ElementsAre("0.001", "0.01", "0.1", "1", "10", "100", "1,000"));
  EXPECT_THAT(LogarithmicTicks(0.001, 1000, 3).At, ElementsAre(0.001, 1, 1000));
  EXPECT_THAT(LogarithmicTicks(0.3, 40, 10).Labels, ElementsAre("0.5", "1", "2", "5", "10", "20"));
  EXPECT_THAT(LogarithmicTicks(3, 4, 5).Labels, ElementsAre("3.0", "3.2", "3.4", "3.6", "3.8", "4.0"));
  EXPECT_THAT(LogarithmicTicks(1, 100, 10).Between,
              ElementsAre(2, 3, 4, 5, 6, 7, 8, 9, 20, 30, 40, 50, 60, 70, 80, 90));
}

TEST(ChartTicks, NumbersAreSpelledInTheLocale) {
  SetNumberLocale({",", "."});
  EXPECT_THAT(LinearTicks(0, 1.1, 3).Labels, ElementsAre("0,0", "0,5", "1,0"));
  EXPECT_THAT(LogarithmicTicks(10, 1000, 3).Labels, ElementsAre("10", "100", "1.000"));
  SetNumberLocale({});
}

TEST(ChartTicks, ARangeThatIsNoneHasNoTicks) {
  constexpr double Inf = std::numeric_limits<double>::infinity();
  constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
  for (const auto& [lower, upper] : {std::pair{1.0, 1.0}, {2.0, 1.0}, {0.0, Inf}, {NaN, 1.0}, {0.0, NaN}}) {
    EXPECT_THAT(LinearTicks(lower, upper, 5).At, IsEmpty()) << lower << " " << upper;
    EXPECT_THAT(LogarithmicTicks(lower, upper, 5).At, IsEmpty()) << lower << " " << upper;
  }
  EXPECT_THAT(LogarithmicTicks(-1, 10, 5).At, IsEmpty());
}

}  // namespace

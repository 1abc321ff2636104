// A monkey at the real widgets.
#include "console/Monkey.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/WidgetHands.h"

namespace {

TEST(WidgetMonkey, AThousandLinesAreAllAnswered) {
  const int lines = MonkeyLines(1000);
  const MonkeyReport report = LetMonkeyType(WidgetStage, lines);
  EXPECT_EQ(report.Answered, lines);
  EXPECT_THAT(report.Wrong, testing::IsEmpty());
  EXPECT_GT(report.Shown, lines / 100) << "the monkey never solved a channel";
  EXPECT_LT(report.MemoryGrowth, std::size_t{32} << 20U);
}

}  // namespace

// A monkey at the console.
#include "console/Monkey.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "console/ConsoleStage.h"

namespace {

TEST(Monkey, TwentyThousandLinesAreAllAnswered) {
  const int lines = MonkeyLines(20000);
  const MonkeyReport report = LetMonkeyType(ControllerStage, lines);
  EXPECT_EQ(report.Answered, lines);
  EXPECT_THAT(report.Wrong, testing::IsEmpty());
  EXPECT_GT(report.Shown, lines / 100) << "the monkey never solved a channel";
  EXPECT_LT(report.MemoryGrowth, std::size_t{16} << 20U);
}

}  // namespace

// A monkey at the console.
#include "console/Monkey.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "console/ConsoleStage.h"

namespace {

TEST(Monkey, TwentyThousandLinesAreAllAnswered) {
  EXPECT_THAT(LetMonkeyType(ControllerStage, MonkeyLines(20000)), testing::IsEmpty());
}

}  // namespace

// A monkey at the real widgets.
#include "console/Monkey.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/WidgetHands.h"

namespace {

TEST(WidgetMonkey, AThousandLinesAreAllAnswered) {
  EXPECT_THAT(LetMonkeyType(WidgetStage, MonkeyLines(1000)), testing::IsEmpty());
}

}  // namespace

// The conversations of the console, and a monkey's, held with the real widgets.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "console/Conversation.h"
#include "console/Monkey.h"
#include "desktop/WidgetHands.h"

namespace {

class Replay : public testing::TestWithParam<std::string> {};

TEST_P(Replay, GoesAsWritten) {
  EXPECT_THAT(Differences(ReadConversation(GetParam()), WidgetStage), testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Kept, Replay, testing::ValuesIn(ConversationFiles(CONVERSATIONS)),
                         [](const testing::TestParamInfo<std::string>& file) {
                           return std::filesystem::path(file.param).stem().string();
                         });

TEST(WidgetMonkey, AThousandLinesAreAllAnswered) {
  EXPECT_THAT(LetMonkeyType(WidgetStage, MonkeyLines(1000)), testing::IsEmpty());
}

}  // namespace

// The conversations of the console, held with the real widgets.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "console/Conversation.h"
#include "desktop/WidgetHands.h"

namespace {

class Replay : public testing::TestWithParam<const char*> {};

TEST_P(Replay, GoesAsWritten) {
  EXPECT_THAT(
      Differences(ReadConversation(std::string(CONVERSATIONS) + "/" + GetParam() + ".txt"), WidgetStage),
      testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Kept, Replay,
                         testing::Values("anchors", "badinput", "changed", "digits", "edit", "irreg_drawing",
                                         "irreg_editor", "irreg_messages", "irreg_metric", "irreg_replaced",
                                         "modes", "roughness", "units"),
                         [](const testing::TestParamInfo<const char*>& conversation) {
                           return std::string(conversation.param);
                         });

}  // namespace

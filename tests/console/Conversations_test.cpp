// Every kept conversation, held with the controllers as people in several countries write numbers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "console/ConsoleStage.h"
#include "console/Conversation.h"

namespace {

class Conversations : public testing::TestWithParam<std::string> {};

TEST_P(Conversations, GoAsWritten) {
  const std::vector<Exchange> conversation = ReadConversation(GetParam());
  ASSERT_FALSE(conversation.empty());
  EXPECT_THAT(Differences(conversation, ControllerStage), testing::IsEmpty());
}

TEST_P(Conversations, GoTheSameWithDecimalComma) {
  EXPECT_THAT(Differences(InLocale({",", "."}, ReadConversation(GetParam())), ControllerStage),
              testing::IsEmpty());
}

TEST_P(Conversations, GoTheSameWithGroupsBetweenNoBreakSpaces) {
  EXPECT_THAT(Differences(InLocale({",", "\u202F"}, ReadConversation(GetParam())), ControllerStage),
              testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Kept, Conversations, testing::ValuesIn(ConversationFiles(CONVERSATIONS)),
                         [](const testing::TestParamInfo<std::string>& file) {
                           const std::size_t name = file.param.rfind('/') + 1;
                           return file.param.substr(name, file.param.rfind('.') - name);
                         });

TEST(Protocol, AWindowAnswersWhenItOpensAndEndOfInputClosesIt) {
  EXPECT_THAT(Differences({{"get tbFlow.Text", "error: not running"},
                           {"start", "ok"},
                           {"click mnuOptionsDigits", "ok"},
                           {"form", "frmDigits"},
                           {"start", "ok"},
                           {"form", "frmMain"},
                           {"type tbProjName a\\tb\\\\c", "ok"},
                           {"get tbProjName.Text", "a\\tb\\\\c"},
                           {"type tbArea 1", "error: tbArea is locked"},
                           {"answer No", "ok"},
                           {"click mnuFileExit", "ok"},
                           {"form", "error: not running"},
                           {"start", "ok"},
                           {"click cmdMannParams", "ok"}},
                          ControllerStage),
              testing::IsEmpty());
}

}  // namespace

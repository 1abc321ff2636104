// Every kept conversation, held with the controllers as people in several countries write numbers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "console/ConsoleStage.h"
#include "console/Conversation.h"
#include "console/Monkey.h"

namespace {

class Conversations : public testing::TestWithParam<std::string> {};

TEST_P(Conversations, GoAsWritten) {
  const std::vector<Exchange> conversation = ReadConversation(GetParam());
  ASSERT_FALSE(conversation.empty());
  EXPECT_THAT(Differences(conversation, ControllerStage), testing::IsEmpty());
}

TEST_P(Conversations, GoTheSameInOtherCountries) {
  for (const char* const groups : {".", "\u202F"}) {
    const auto conversation = InLocale({",", groups}, ReadConversation(GetParam()));
    EXPECT_THAT(Differences(conversation, ControllerStage), testing::IsEmpty()) << groups;
  }
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

TEST(Monkey, TwentyThousandLinesAreAllAnswered) {
  EXPECT_THAT(LetMonkeyType(ControllerStage, MonkeyLines(20000)), testing::IsEmpty());
}

}  // namespace

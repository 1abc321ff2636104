// The examples open and give the answers that a separate hand calculation gives.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "console/ConsoleStage.h"
#include "console/Conversation.h"

namespace {

struct Example {
  const char* File;
  const char* SolvedBox;
  const char* Solved;
  const char* Velocity;
  const char* CriticalDepth;
};

// Solved for by bisection of the flow in 200 steps at full precision, apart from the program.
constexpr Example Examples[] = {
    {"storm-drain.fwd", "tbDepth", "2.086", "6.67", "1.923"},   // 2.08568, 6.67224, 1.92273
    {"roadside-ditch.fwd", "tbFlow", "21.2", "4.20", "1.179"},  // 21.17782, 4.20195, 1.17877
    {"lined-canal.fwd", "tbDepth", "1.642", "1.34", "0.990"},   // 1.64166, 1.33816, 0.99041
    {"box-culvert.fwd", "tbFlow", "18.9", "4.37", "1.848"},     // 18.87617, 4.36948, 1.84769
    // Surveys, their wetted parts summed segment by segment and stretch by stretch.
    {"stream-overbanks.fwd", "tbDepth", "110.205", "4.54", "108.039"},  // 110.20488, 4.54352, 108.03899
    {"braided-reach.fwd", "tbFlow", "35.4", "1.43", "401.265"},         // 35.39252, 1.42663, 401.26474
};

TEST(ExampleProjects, GiveTheAnswersTold) {
  for (const Example& each : Examples) {
    EXPECT_THAT(Differences({{"start", "ok"},
                             {"choose " EXAMPLES "/" + std::string(each.File), "ok"},
                             {"click mnuFileOpen", "ok"},
                             {"messages", ""},
                             {"get " + std::string(each.SolvedBox) + ".Text", each.Solved},
                             {"get tbVelocity.Text", each.Velocity},
                             {"get tbCritD.Text", each.CriticalDepth},
                             {"shared DataChanged", "False"}},
                            ControllerStage),
                testing::IsEmpty())
        << each.File;
  }
}

}  // namespace

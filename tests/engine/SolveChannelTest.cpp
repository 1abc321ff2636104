// The way from a channel type and a mode to its operation.
#include "engine/SolveChannel.h"

#include "Problem.h"
#include "engine/NumberText.h"

namespace {

class SolveChannelTest : public EngineTest {
 protected:
  ~SolveChannelTest() override { SetNumberLocale({}); }

  static void SetAllInputs() {
    SetTrapezoid(4, 1, 2, 0.02, 0.002);
    ChannelState.Diameter = 5;
    ChannelState.IrregEnginePoints = Table({{0, 6, 0.02}, {6, 0}, {10, 0}, {22, 6}});
    ChannelState.IrregPointCount = 4;
  }
};

TEST_F(SolveChannelTest, DepthOfTheFlowOfADepthIsThatDepth) {
  for (const NumberLocale& locale : {NumberLocale{".", ","}, NumberLocale{",", "."}}) {
    SetNumberLocale(locale);
    for (const std::string_view type : ChannelTypes::All) {
      SetAllInputs();
      ChannelState.ChannelType = type;
      ChannelState.SolveForFlow = true;
      ChannelState.Depth = locale.DecimalSign == "." ? "2.5" : "2,5";
      ASSERT_TRUE(SolveChannel());
      const double Q = ChannelState.Flow.Number();
      EXPECT_GT(Q, 10) << type;
      ChannelState.SolveForFlow = false;
      ChannelState.Depth = "";
      ASSERT_TRUE(SolveChannel());
      EXPECT_NEAR(ChannelState.Depth.Number(), 2.5, 1e-6) << type;
      EXPECT_EQ(ChannelState.Flow, Q);
    }
  }
}

TEST_F(SolveChannelTest, EachTypeHasItsOwnOperation) {
  // The areas tell them apart: the pipe half full, the survey steeper than the trapezoid on neither side.
  SetAllInputs();
  ChannelState.SolveForFlow = true;
  ChannelState.Depth = 2.5;
  ChannelState.IrregEnginePoints[4][1] = 28;
  for (const auto& [type, area] : std::initializer_list<std::pair<std::string_view, double>>{
           {ChannelTypes::Trapezoidal, 2.5 * 4 + 1.5 * 6.25},
           {ChannelTypes::Circular, 3.141592654 * 25 / 8},
           {ChannelTypes::Irregular, 2.5 * 4 + 2 * 6.25}}) {
    ChannelState.ChannelType = type;
    SolveChannel();
    EXPECT_NEAR(ChannelState.Area.Number(), area, 1e-8) << type;
  }
}

TEST_F(SolveChannelTest, AnUnknownTypeRunsNothing) {
  SetAllInputs();
  ChannelState.Depth = 2.5;
  ChannelState.Area = 7;
  for (const char* type : {"", "circular channel", "Circular Channel "}) {
    ChannelState.ChannelType = type;
    EXPECT_FALSE(SolveChannel());
    EXPECT_EQ(ChannelState.Area, 7);
  }
}

}  // namespace

// The way from a channel type and a mode to its operation.
#include "engine/SolveChannel.h"

#include "Problem.h"
#include "engine/NumberText.h"

namespace {

class SolveChannelTest : public EngineTest {
 protected:
  ~SolveChannelTest() override { SetNumberLocale({}); }

  /// Inputs of every type at once; a flow in the survey tells it from the trapezoid by its right bank.
  static void SetAllInputs() {
    SetTrapezoid(4, 1, 2, 0.02, 0.002);
    ChannelState.Diameter = 5;
    ChannelState.IrregEnginePoints = Table({{0, 6, 0.02}, {6, 0}, {10, 0}, {28, 6}});
    ChannelState.IrregPointCount = 4;
  }
};

TEST_F(SolveChannelTest, EachTypeHasItsOperationsOneTheInverseOfTheOther) {
  const double prismatic = 2.5 * 4 + 1.5 * 6.25, pipe = 3.141592654 * 25 / 8, surveyed = 2.5 * 4 + 2 * 6.25;
  struct Case {
    std::string_view Type;
    double Area;
  };
  for (const char* const depth : {"2.5", "2,5"}) {
    SetNumberLocale({depth[1] == '.' ? "." : ",", ""});
    for (const Case& c :
         {Case{ChannelTypes::Rectangular, prismatic}, Case{ChannelTypes::Triangular, prismatic},
          Case{ChannelTypes::Trapezoidal, prismatic}, Case{ChannelTypes::Circular, pipe},
          Case{ChannelTypes::Irregular, surveyed}}) {
      SetAllInputs();
      ChannelState.ChannelType = c.Type;
      ChannelState.SolveForFlow = true;
      ChannelState.Depth = depth;
      ASSERT_TRUE(SolveChannel());
      EXPECT_NEAR(ChannelState.Area.Number(), c.Area, 1e-8) << c.Type;
      const double Q = ChannelState.Flow.Number();
      EXPECT_GT(Q, 10) << c.Type;
      ChannelState.SolveForFlow = false;
      ChannelState.Depth = "";
      ASSERT_TRUE(SolveChannel());
      EXPECT_NEAR(ChannelState.Depth.Number(), 2.5, 1e-6) << c.Type;
      EXPECT_EQ(ChannelState.Flow, Q);
    }
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

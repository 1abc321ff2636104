// The way from a channel type and a mode to its operation.
#include "engine/SolveChannel.h"

#include "Problem.h"
#include "engine/NumberText.h"

namespace {

class SolveChannelTest : public EngineTest {
 protected:
  /// Inputs of every type at once; the survey differs from the trapezoid in its right bank.
  SolveChannelTest() {
    SetNumberLocale({",", "."});
    SetTrapezoid(4, 1, 2, 0.02, 0.002);
    ChannelState.Diameter = 5;
    ChannelState.IrregEnginePoints = Table({{0, 6, 0.02}, {6, 0}, {10, 0}, {28, 6}});
    ChannelState.IrregPointCount = 4;
  }
  ~SolveChannelTest() override { SetNumberLocale({}); }
};

TEST_F(SolveChannelTest, EachTypeHasItsOperationsOneTheInverseOfTheOther) {
  const double prismatic = 2.5 * 4 + 1.5 * 6.25, pipe = 3.141592654 * 25 / 8, surveyed = 2.5 * 4 + 2 * 6.25;
  for (const auto& [type, area] : {std::pair(ChannelTypes::Rectangular, prismatic),
                                   {ChannelTypes::Triangular, prismatic},
                                   {ChannelTypes::Trapezoidal, prismatic},
                                   {ChannelTypes::Circular, pipe},
                                   {ChannelTypes::Irregular, surveyed}}) {
    ChannelState.ChannelType = type;
    SolveFlow("2,5");
    EXPECT_NEAR(ChannelState.Area.Number(), area, 1e-8) << type;
    EXPECT_GT(ChannelState.Flow.Number(), 10) << type;
    SolveDepth(ChannelState.Flow);
    EXPECT_NEAR(ChannelState.Depth.Number(), 2.5, 1e-6) << type;
  }
}

TEST_F(SolveChannelTest, AnUnknownTypeRunsNothing) {
  ChannelState.Depth = 2.5;
  ChannelState.Area = 7;
  for (const char* type : {"", "circular channel", "Circular Channel "}) {
    ChannelState.ChannelType = type;
    EXPECT_FALSE(SolveChannel());
    EXPECT_EQ(ChannelState.Area, 7);
  }
}

}  // namespace

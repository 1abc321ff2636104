// Trapezoids, rectangles and triangles against hand values, closed forms and a second method.
#include "engine/ManningTrap.h"

#include <cmath>
#include <limits>

#include "Problem.h"
#include "engine/Bisection.h"
#include "engine/UniformFlow.h"

namespace {

using ManningTrapTest = EngineTest;

TEST(Bisection, ReportsTheLastMidpointTried) {
  int tried = 0;
  const double top = LastMidpoint(0, 999, 1, [&](double) { return ++tried, 0; });
  EXPECT_EQ(tried, 30);
  EXPECT_DOUBLE_EQ(top, 999 - std::ldexp(999, -30));
  EXPECT_DOUBLE_EQ(LastMidpoint(0, 999, 0, [](double) { return 0; }), std::ldexp(999, -30));
}

TEST(Bisection, EndsWhereDoublesAreCoarserThanTheTolerance) {
  const double lo = 1e12;
  const double found = LastMidpoint(lo, lo + 999, lo + 500, [](double y) { return y; });
  EXPECT_NEAR(found, lo + 500, 2e-4);
  EXPECT_LE(LastMidpoint(1e18, 1e18 + 999, 0, [](double y) { return y; }), 1e18 + 128);
  EXPECT_THROW(LastMidpoint(1e20, 1e20 + 999, 0, [](double y) { return y; }), EngineFault);
  EXPECT_THROW(LastMidpoint(0, 1e-6, 0, [](double y) { return y; }), EngineFault);
}

TEST_F(ManningTrapTest, RectangleByHand) {
  SetTrapezoid(10, 0, 0, 0.013, 0.001);
  SolveFlow(2);
  EXPECT_EQ(ChannelState.Area, 20);
  EXPECT_EQ(ChannelState.WettedPerimeter, 14);
  EXPECT_DOUBLE_EQ(ChannelState.HydraulicRadius.Number(), 20.0 / 14);
  const double Q = ChannelState.Flow.Number();
  EXPECT_NEAR(Q, 91.696, 5e-4);
  EXPECT_DOUBLE_EQ(ChannelState.Velocity.Number(), Q / 20);
  EXPECT_DOUBLE_EQ(ChannelState.VelocityHead.Number(), Q * Q / 400 / 64.3481);
  EXPECT_EQ(ChannelState.TopWidth, 10);
  EXPECT_DOUBLE_EQ(ChannelState.Froude.Number(), Q / 20 / std::sqrt(32.17405 * 2));
  const double yc = ChannelState.CriticalDepth.Number();
  EXPECT_NEAR(yc, std::cbrt(Q * Q / 100 / 32.17405), 1e-6);
  // At its critical slope the channel carries the flow at critical depth.
  SetTrapezoid(10, 0, 0, 0.013, ChannelState.CriticalSlope.Number());
  SolveDepth(Q);
  EXPECT_NEAR(ChannelState.Depth.Number(), yc, 2e-6);
  EXPECT_NEAR(ChannelState.Froude.Number(), 1, 1e-5);
}

TEST_F(ManningTrapTest, RandomChannelsByASecondMethod) {
  Uniform uniform(1);
  for (int i = 0; i < 300; ++i) {
    const double b = uniform(0, 50), zL = uniform(0.1, 5), zR = uniform(0, 5), n = uniform(0.01, 0.1);
    const double S = std::pow(10, uniform(-4, -1)), Q = std::pow(10, uniform(-1, 5));
    // The area as the mean of base and top width, the sides by Pythagoras.
    const auto area = [&](long double y) { return (b + y * (zL + zR) / 2) * y; };
    const auto perimeter = [&](long double y) { return b + std::hypot(y, y * zL) + std::hypot(y, y * zR); };
    const double yn = Root(0, 999, [&](long double y) {
      return 1.485919L / n * std::pow(area(y), 5 / 3.0L) / std::pow(perimeter(y), 2 / 3.0L) * std::sqrt(S) -
             Q;
    });
    const double yc = Root(0, 999, [&](long double y) {
      return 32.17405L * std::pow(area(y), 3.0L) - static_cast<long double>(Q) * Q * (b + y * (zL + zR));
    });
    SetTrapezoid(b, zL, zR, n, S);
    SolveDepth(Q);
    ASSERT_NEAR(ChannelState.Depth.Number(), yn, 1e-6);
    ASSERT_NEAR(ChannelState.CriticalDepth.Number(), yc, 1e-6);
    SolveFlow(ChannelState.Depth);
    ASSERT_NEAR(ChannelState.Flow.Number() / Q, 1, 1e-4);
  }
}

TEST_F(ManningTrapTest, SideSlopesAddUpRightFirst) {
  EXPECT_EQ(ManningTrap::TrapWettedPerimeter(1.3, 1.9, 2, 3),
            (1.9 + 1.3 * std::sqrt(10.0)) + 1.3 * std::sqrt(5.0));  // the other order differs in the last bit
  EXPECT_EQ(ManningTrap::TrapTopWidth(2, 10, 1, 3), 18);
  EXPECT_EQ(ManningTrap::TrapArea(2, 10, 1, 3), 28);
}

TEST_F(ManningTrapTest, DepthsOutOfRangeOverflow) {
  SetTrapezoid(10, 0, 0, 0.013, 0.001);
  SolveDepth(1e9);
  ExpectOverflow(ChannelState.Depth);
  EXPECT_EQ(ChannelState.Flow, 1e9);

  SetTrapezoid(10, 0, 0, 0.013, 0);
  SolveDepth(1);
  ExpectOverflow(ChannelState.Depth);

  // Steep enough to carry at a normal depth in range what is critical only beyond it.
  SetTrapezoid(1, 0, 0, 0.001, 0.9);
  SolveFlow(990);
  EXPECT_TRUE(ChannelState.CriticalDepth.IsFalse());
  EXPECT_TRUE(ChannelState.CriticalSlope.IsEmptyText());
}

TEST_F(ManningTrapTest, ADepthWithoutFlowIsTheLowestMidpoint) {
  SetTrapezoid(10, 1, 1, 0.013, 0.001);
  EXPECT_EQ(FaultOf([] { SolveDepth(0); }), "the flow is zero");  // there is no critical slope
  EXPECT_DOUBLE_EQ(ChannelState.Depth.Number(), std::ldexp(999, -30));
  EXPECT_EQ(ChannelState.Velocity, 0);
}

TEST_F(ManningTrapTest, AFaultKeepsTheResultsBeforeIt) {
  SetTrapezoid(0, 1, 1, 0.013, 0.001);
  ChannelState.Area = ChannelState.WettedPerimeter = ChannelState.HydraulicRadius = "before";
  EXPECT_THROW(SolveFlow(0), EngineFault);
  EXPECT_EQ(ChannelState.Area, 0);
  EXPECT_EQ(ChannelState.WettedPerimeter, 0);
  EXPECT_EQ(ChannelState.HydraulicRadius, "before");
}

TEST_F(ManningTrapTest, FaultsNameTheirReason) {
  const double huge = 1e308, infinite = std::numeric_limits<double>::infinity();
  struct Case {
    double y, b, z, n, S;
    const char* reason;
  };
  for (const Case& c : {Case{1, 0, 0, 0.01, 0.001, "the flow area is zero"},
                        {0, 0, 1, 0.01, 0.001, "the wetted perimeter is zero"},
                        {1, -1.5, 0, 0.01, 0.001, "the hydraulic radius is negative"},  // -1.5 / (-1.5 + 2)
                        {1, 5, 1, 0, 0.001, "Manning's n is zero"},
                        {1, 5, 1, 0.01, -0.001, "the slope is negative"},
                        {huge, 5, 1, 0.01, 0.001, "a number is too large"},
                        {1, 5, huge, 0.01, 0.001, "a number is too large"},
                        {1, 5, 1e160, 0.01, 0.001, "a number is too large"},
                        {1, 5, 1, infinite, 0.001, "a number is too large"},
                        {1, infinite, 1, 0.01, 0.001, "a number is too large"}}) {
    SetTrapezoid(c.b, c.z, c.z, c.n, c.S);
    EXPECT_EQ(FaultOf([&] { SolveFlow(c.y); }), c.reason) << c.y << ' ' << c.b << ' ' << c.z;
  }
  SetTrapezoid(5, 1, 1, 0.01, -0.001);
  EXPECT_EQ(FaultOf([] { SolveDepth(10); }), "the slope is negative");
  // Sides so flat that their length overflows would make R, and so the flow, a silent 0.
  SetTrapezoid(5, 1e160, 1e160, 0.01, 0.001);
  EXPECT_EQ(FaultOf([] { SolveDepth(10); }), "a number is too large");
  EXPECT_EQ(FaultOf([&] { UniformFlow::SectionFactor(1, infinite); }), "a number is too large");
  EXPECT_EQ(FaultOf([] { UniformFlow::SectionFactor(1, 0); }), "the top width is zero");
  EXPECT_EQ(FaultOf([] { UniformFlow::SectionFactor(1, -1); }), "the hydraulic depth is negative");
  EXPECT_EQ(FaultOf([] { ManningTrap::TrapFroude(1, 0, 1); }), "the top width is zero");
  EXPECT_EQ(FaultOf([] { ManningTrap::TrapCriticalSlope(0, 5, 1, 1, 0.01, 10); }),
            "the flow area at critical depth is zero");
}

}  // namespace

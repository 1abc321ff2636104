// Pipes against hand values and a second method. The engine's pi has ten digits, so the second method, with
// the full constant, agrees to about 1e-9.
#include "engine/ManningCircular.h"

#include <cmath>

#include "Problem.h"

namespace {

using ManningCircularTest = EngineTest;

constexpr long double FullPi = 3.14159265358979323846L;

// Geometry by the half angle at the centre.
struct PipeWater {
  PipeWater(long double y, long double D)
      : half(std::acos(1 - 2 * y / D)),
        A(D * D / 4 * (half - std::sin(half) * std::cos(half))),
        P(D * half),
        T(D * std::sin(half)) {}
  long double half, A, P, T;

  long double Flow(long double n, long double S) const {
    return 1.485919L / n * A * std::pow(A / P, 2 / 3.0L) * std::sqrt(S);
  }
};

TEST_F(ManningCircularTest, HalfFullByHand) {
  SetPipe(2, 0.013, 0.001);
  SolveFlow(1);
  EXPECT_NEAR(ChannelState.Area.Number(), 1.5707963, 1e-7);
  EXPECT_EQ(ChannelState.WettedPerimeter, 3.141592654);
  EXPECT_NEAR(ChannelState.HydraulicRadius.Number(), 0.5, 1e-9);
  EXPECT_EQ(ChannelState.TopWidth, 2);
  EXPECT_NEAR(ChannelState.Flow.Number(), 3.5767, 5e-5);
  const double V = ChannelState.Flow.Number() / 1.5707963;
  EXPECT_NEAR(ChannelState.Velocity.Number(), V, 1e-6);
  EXPECT_NEAR(ChannelState.Froude.Number(), V / std::sqrt(32.17405 * 1.5707963 / 2), 1e-6);
}

TEST_F(ManningCircularTest, FullPipe) {
  SetPipe(2, 0.013, 0.001);
  SolveFlow(2);
  EXPECT_EQ(ChannelState.Area, 3.141592654);
  EXPECT_EQ(ChannelState.WettedPerimeter, 3.141592654 * 2);
  EXPECT_EQ(ChannelState.TopWidth, 0);
  EXPECT_TRUE(ChannelState.Froude.IsFalse());
  EXPECT_TRUE(ChannelState.CriticalDepth.IsDouble());
  EXPECT_TRUE(ChannelState.CriticalSlope.IsDouble());
}

TEST_F(ManningCircularTest, FlowIsGreatestNear938Thousandths) {
  const auto flow = [](double y) {
    SolveFlow(y);
    return ChannelState.Flow.Number();
  };
  SetPipe(1, 0.013, 0.002);
  const double full = flow(1);
  double deepest = 0, greatest = 0;
  for (int i = 1; i <= 1000; ++i) {
    const double Q = flow(i / 1000.0);
    if (Q > greatest) {
      greatest = Q;
      deepest = i / 1000.0;
    }
  }
  EXPECT_NEAR(deepest, 0.938, 0.001);
  EXPECT_NEAR(greatest / full, 1.0757, 1e-4);
  EXPECT_DOUBLE_EQ(ManningCircular::CircMaxFlow(1, 0.002, 0.013), flow(0.938));
}

TEST_F(ManningCircularTest, RandomPipesByASecondMethod) {
  Uniform uniform(2);
  for (int i = 0; i < 300; ++i) {
    const double D = uniform(0.3, 20), n = uniform(0.009, 0.03), S = std::pow(10, uniform(-4, -1.5));
    const double Q = uniform(0.01, 0.99) * static_cast<double>(PipeWater(0.938L * D, D).Flow(n, S));
    SetPipe(D, n, S);
    SolveDepth(Q);
    const double yn = Root(0, 0.938L * D, [&](long double y) { return PipeWater(y, D).Flow(n, S) - Q; });
    ASSERT_NEAR(ChannelState.Depth.Number(), yn, 1.1e-6);
    const double yc = Root(0, D, [&](long double y) {
      const PipeWater water(y, D);
      return 32.17405L * water.A * water.A * water.A - static_cast<long double>(Q) * Q * water.T;
    });
    ASSERT_NEAR(ChannelState.CriticalDepth.Number(), yc, 1.1e-6);
    const PipeWater critical(yc, D);
    const double Sc = static_cast<double>(std::pow(Q / critical.Flow(n, 1), 2.0L));
    ASSERT_NEAR(ChannelState.CriticalSlope.Number() / Sc, 1, 1e-4);
    SolveFlow(ChannelState.Depth);
    ASSERT_NEAR(ChannelState.Flow.Number() / Q, 1, 1e-4);
  }
}

TEST_F(ManningCircularTest, Overflow) {
  SetPipe(2, 0.013, 0.001);
  SolveFlow(2.0000001);
  ExpectOverflow(ChannelState.Flow);

  // A flow that only the upper branch carries, the greatest flow itself, and any flow on no slope.
  const double greatest = ManningCircular::CircMaxFlow(2, 0.001, 0.013);
  for (const double Q : {greatest, greatest * 1.01}) {
    SolveDepth(Q);
    ExpectOverflow(ChannelState.Depth);
    EXPECT_EQ(ChannelState.Flow, Q);
  }
  SolveDepth(std::nextafter(greatest, 0));
  EXPECT_NEAR(ChannelState.Depth.Number(), 1.876, 2e-3);
  SetPipe(2, 0.013, 0);
  SolveDepth(1);
  ExpectOverflow(ChannelState.Depth);
}

TEST_F(ManningCircularTest, NoCriticalDepthAtTheCrown) {
  EXPECT_EQ(std::nextafter(Constants::CrownTolerance, 1), 1e-5);
  EXPECT_TRUE(ManningCircular::CircCriticalDepth(1, 1000).IsEmptyText());
  EXPECT_TRUE(ManningCircular::CircCriticalSlope("", 1, 0.013, 1000).IsEmptyText());
  EXPECT_TRUE(ManningCircular::CircCriticalSlope("0.5", 1, 0.013, 1000).IsEmptyText());
  EXPECT_TRUE(ManningCircular::CircCriticalSlope(1, 1, 0.013, 1000).IsEmptyText());
  EXPECT_TRUE(ManningCircular::CircCriticalSlope(0.5, 1, 0.013, 1).IsDouble());
}

TEST_F(ManningCircularTest, Faults) {
  EXPECT_THROW(ManningCircular::ArcCos(1), EngineFault);
  EXPECT_THROW(ManningCircular::ArcCos(-1), EngineFault);
  EXPECT_NEAR(ManningCircular::ArcCos(0.5), static_cast<double>(FullPi / 3), 1e-9);
  struct Case {
    double D, y, n, S;
  };
  // Dry, no pipe, no roughness, uphill, and a depth lost beside the diameter.
  for (const Case& c :
       {Case{2, 0, 0.013, 0.001}, Case{0, 0, 0.013, 0.001}, Case{2, 1, 0, 0.001}, Case{2, 1, 0.013, -0.001},
        Case{1e12, 1e-6, 0.013, 0.001}, Case{1e308, 1e307, 0.013, 0.001}}) {
    SetPipe(c.D, c.n, c.S);
    EXPECT_THROW(SolveFlow(c.y), EngineFault) << c.D << ' ' << c.y;
  }
  SetPipe(1.06e-6, 0.013, 0.001);  // too thin to search
  EXPECT_THROW(SolveDepth(0), EngineFault);
  SetPipe(1e12, 0.013, 0.001);  // the search ends where the angle is lost
  ChannelState.Depth = "";
  EXPECT_THROW(SolveDepth(1e-9), EngineFault);
  EXPECT_TRUE(ChannelState.Depth.IsEmptyText());
}

}  // namespace

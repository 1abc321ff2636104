// Surveyed sections against hand values, segment by segment, and the trapezoid of the same outline.
#include "engine/ManningIrreg.h"

#include <algorithm>
#include <cmath>

#include "Problem.h"
#include "engine/Constants.h"

namespace {

using ManningIrregTest = EngineTest;
using Points = std::vector<Point>;

struct Geometry {
  double A, P, T;
};

Geometry Measure(const PointTable& table, int count, double W) {
  return {ManningIrreg::IrregArea(table, count, W), ManningIrreg::IrregWettedPerimeter(table, count, W),
          ManningIrreg::IrregTopWidth(table, count, W)};
}

// The second method: under each segment of the ground its mean wet depth times its wet width.
Geometry MeasureBySegments(const Points& points, double W) {
  Geometry g{0, 0, 0};
  for (size_t i = 0; i + 1 < points.size(); ++i) {
    const double dx = points[i + 1].x - points[i].x, dy = std::abs(points[i + 1].e - points[i].e);
    const double low = std::min(points[i].e, points[i + 1].e);
    const double wetPart = std::clamp((W - low) / dy, 0.0, 1.0);
    const double meanDepth = W - low - wetPart * dy / 2;
    g.A += wetPart * dx * meanDepth;
    g.P += wetPart * std::hypot(dx, dy);
    g.T += wetPart * dx;
  }
  return g;
}

TEST_F(ManningIrregTest, GeometryByHand) {
  const Points vee = {{0, 10}, {10, 0}, {20, 10}};
  const Points tub = {{0, 2}, {1, 0}, {5, 0}, {6, 2}};
  const Points island = {{0, 4}, {2, 0}, {4, 4}, {6, 2}, {8, 6}};
  const double root5 = std::sqrt(5.0), root2 = std::sqrt(2.0);
  struct Case {
    const Points& points;
    double W;
    Geometry expected;
  };
  for (const Case& c : {Case{vee, 5, {25, 10 * root2, 10}}, Case{vee, 10, {100, 20 * root2, 20}},
                        Case{vee, 12, {140, 20 * root2, 20}},  // end stations are no walls
                        Case{tub, 0, {0, 0, 0}},               // a flat bed at W is not under water
                        Case{tub, 2, {10, 4 + 2 * root5, 6}}, Case{tub, 4, {22, 4 + 2 * root5, 6}},
                        Case{island, 2, {2, 2 * root5, 2}},  // the second low only touches W
                        Case{island, 3, {5.25, 3 * root5 + root2 + root5 / 2, 4.5}},  // two waters
                        Case{vee, -1, {0, 0, 0}}}) {
    const auto found = Measure(Table(c.points), static_cast<int>(c.points.size()), c.W);
    EXPECT_DOUBLE_EQ(found.A, c.expected.A) << c.W;
    EXPECT_DOUBLE_EQ(found.P, c.expected.P) << c.W;
    EXPECT_DOUBLE_EQ(found.T, c.expected.T) << c.W;
  }
}

TEST_F(ManningIrregTest, RandomGroundBySegments) {
  Uniform uniform(3);
  for (int i = 0; i < 300; ++i) {
    Points points;
    const int count = static_cast<int>(uniform(2, 102));
    double x = uniform(-50, 50);
    for (int p = 0; p < count; ++p) points.push_back({x += uniform(0.1, 9), uniform(-20, 20)});
    const double W = uniform(-19, 25);
    const Geometry expected = MeasureBySegments(points, W);
    const Geometry found = Measure(Table(points), count, W);
    ASSERT_NEAR(found.A, expected.A, 1e-8);
    ASSERT_NEAR(found.P, expected.P, 1e-9);
    ASSERT_NEAR(found.T, expected.T, 1e-9);
  }
}

TEST_F(ManningIrregTest, SubsectionsFlowSideBySide) {
  const double k = 1.485919, rootS = 0.05;
  const auto part = [&](double n, double A, double P) {
    return rootS * (k / n * A * std::pow(A / P, 2.0 / 3));
  };
  const double bank = std::sqrt(104.0);
  const auto flow = [&](const Points& points, double W) {
    return ManningIrreg::IrregFlow(Table(points), static_cast<int>(points.size()), W, 0.0025);
  };
  const Points three = {{0, 2, 0.05}, {10, 0, "0.03"}, {20, 0, 0.07}, {30, 2, 0.01}};
  EXPECT_DOUBLE_EQ(flow(three, 2), part(0.05, 10, bank) + part(0.03, 20, 10) + part(0.07, 10, bank));
  const Points two = {{0, 2, 0.05}, {10, 0}, {20, 0, 0.07}, {30, 2}};
  EXPECT_DOUBLE_EQ(flow(two, 2), part(0.05, 30, bank + 10) + part(0.07, 10, bank));
  const Points one = {{0, 2, 0.05}, {10, 0}, {20, 0}, {30, 2}};
  EXPECT_DOUBLE_EQ(flow(one, 2), part(0.05, 40, 2 * bank + 10));
  // A dry subsection adds nothing, whatever its n.
  const Points dry = {{0, 2, 0.05}, {10, 0}, {20, 2}, {30, 5, 0}, {40, 6}};
  EXPECT_DOUBLE_EQ(flow(dry, 2), part(0.05, 20, 2 * bank));
  EXPECT_EQ(flow(three, 0), 0);
}

TEST_F(ManningIrregTest, SameAsTheTrapezoidOfItsOutline) {
  Uniform uniform(4);
  for (int i = 0; i < 100; ++i) {
    const double b = uniform(0.1, 40), zL = uniform(0.1, 4), zR = uniform(0.1, 4), n = uniform(0.01, 0.1);
    const double S = std::pow(10, uniform(-4, -2)), y = uniform(0.1, 20), datum = uniform(-100, 1000),
                 top = 400;
    SetTrapezoid(b, zL, zR, n, S);
    SolveFlow(y);
    const ChannelRecord trapezoid = ChannelState;
    const double left = zL * top, right = left + b;
    SetSection({{0, datum + top, n}, {left, datum}, {right, datum}, {right + zR * top, datum + top}}, S);
    SolveFlow(datum + y);
    const double Q = ChannelState.Flow.Number();
    ASSERT_NEAR(Q / trapezoid.Flow.Number(), 1, 1e-9);
    ASSERT_NEAR(ChannelState.Froude.Number(), trapezoid.Froude.Number(), 1e-9);
    ASSERT_NEAR(ChannelState.TopWidth.Number(), trapezoid.TopWidth.Number(), 1e-8);
    ASSERT_NEAR(ChannelState.CriticalDepth.Number() - datum, trapezoid.CriticalDepth.Number(), 2e-6);
    ASSERT_TRUE(ChannelState.CriticalSlope.IsEmptyText());
    SolveDepth(Q);
    ASSERT_NEAR(ChannelState.Depth.Number(), datum + y, 1e-6);
    ASSERT_EQ(ChannelState.Flow, Q);
  }
}

// One bank of 1:1 from the first point up: A = y^2/2 and P = y sqrt 2, so that depth and critical depth have
// closed forms.
TEST_F(ManningIrregTest, TheFirstPointMayBeTheLowest) {
  const double Q = 50, n = 0.03, S = 0.002, datum = 100;
  SetSection({{0, datum, n}, {40, datum + 40}}, S);
  SolveDepth(Q);
  const double hydraulicRadiusOfUnitDepth = 1 / (2 * std::sqrt(2.0));
  const double unitFlow =
      Constants::ManningK / n / 2 * std::pow(hydraulicRadiusOfUnitDepth, 2 / 3.0) * std::sqrt(S);
  EXPECT_NEAR(ChannelState.Depth.Number(), datum + std::pow(Q / unitFlow, 3 / 8.0), 2e-6);
  EXPECT_NEAR(ChannelState.CriticalDepth.Number(), datum + std::pow(8 * Q * Q / Constants::Gravity, 1 / 5.0),
              2e-6);
}

TEST_F(ManningIrregTest, LowPoint) {
  EXPECT_EQ(ManningIrreg::IrregLowPoint(Table({{0, 3}, {1, -2}, {2, 5}, {3, -7}}), 3), -2);
  EXPECT_EQ(ManningIrreg::IrregLowPoint(Table({{0, 3}, {1, 5}}), 2), 3);
  EXPECT_EQ(ManningIrreg::IrregLowPoint(Table({{0, -2}, {1, -1}}), 2), -2);
  EXPECT_EQ(ManningIrreg::IrregLowPoint(Table({{0, 3}}), 1), 3);
}

TEST_F(ManningIrregTest, DepthsOutOfRange) {
  SetSection({{0, 110, 0.03}, {10, 100}, {20, 110}}, 0.001);
  SolveDepth(1e12);
  ExpectOverflow(ChannelState.Depth);
  EXPECT_EQ(ChannelState.Flow, 1e12);
  EXPECT_TRUE(ManningIrreg::IrregCriticalElevation(ChannelState.IrregEnginePoints, 3, 1e12).IsEmptyText());
}

TEST_F(ManningIrregTest, AnswersFarFromTheDatum) {
  SetSection({{0, 1e12 + 10, 0.03}, {10, 1e12}, {20, 1e12 + 10}}, 0.001);
  SolveDepth(100);
  const double depth = ChannelState.Depth.Number() - 1e12;
  SetTrapezoid(0, 1, 1, 0.03, 0.001);
  SolveDepth(100);
  EXPECT_NEAR(depth, ChannelState.Depth.Number(), 1e-3);
}

TEST_F(ManningIrregTest, Faults) {
  const Points vee = {{0, 10, 0.03}, {10, 0}, {20, 10}};
  struct Case {
    const char* what;
    Points points;
    double W, S;
  };
  for (const Case& c : {Case{"no water", vee, 0, 0.001}, Case{"uphill", vee, 5, -0.001},
                        Case{"no n", {{0, 10}, {10, 0, 0.03}, {20, 10}}, 5, 0.001},
                        Case{"n of zero", {{0, 10, 0}, {10, 0}, {20, 10}}, 5, 0.001},
                        Case{"one point", {{0, 10, 0.03}}, 12, 0.001}, Case{"no points", {}, 12, 0.001},
                        Case{"far stations", {{-1e308, 10, 0.03}, {10, 0}, {1e308, 10}}, 5, 0.001},
                        Case{"deep", {{0, 1e308, 0.03}, {10, -1e308}, {20, 1e308}}, 5, 0.001},
                        Case{"long", {{0, 0, 0.03}, {1e200, 1}}, 5, 0.001}}) {
    SetSection(c.points, c.S);
    EXPECT_THROW(SolveFlow(c.W), EngineFault) << c.what;
  }
  EXPECT_THROW(ManningIrreg::IrregFlow(Table({{0, 0, 0.03}, {1e200, 1}}), 2, 5, 0.001), EngineFault);
  // Without a fault these areas would be 0, for want of a segment, and that of a shore taken for the end.
  EXPECT_THROW(ManningIrreg::IrregArea(Table({{0, 10}}), 1, 12), EngineFault);
  EXPECT_THROW(ManningIrreg::IrregArea(Table({{0, 1e308}, {1e-3, -1e308}}), 2, 5), EngineFault);
  SetSection(vee, 0.001);
  ChannelState.IrregPointCount = 102;
  EXPECT_THROW(SolveFlow(5), EngineFault);
  // A wall at the lowest point: water there has no width, and no critical depth can be told.
  EXPECT_THROW(ManningIrreg::IrregCriticalElevation(Table({{0, 10}, {0, -5}, {0, 0}, {10, 0}}), 4, 1e-9),
               EngineFault);
  // A lowest point beside which a midpoint rounds to it, and a section that is a single place.
  for (const Points& nowhere : {Points{{0, 1e20, 0.03}, {10, 1e20}}, Points{{5, 7, 0.03}, {5, 7}, {5, 7}}}) {
    SetSection(nowhere, 0.001);
    EXPECT_THROW(SolveDepth(1), EngineFault);
  }
}

TEST_F(ManningIrregTest, AMissingFirstRoughnessSpoilsTheFlowAndNotTheGeometry) {
  SetSection({{0, 10}, {10, 0, 0.03}, {20, 10}}, 0.001);
  EXPECT_THROW(SolveFlow(5), EngineFault);
  EXPECT_EQ(ChannelState.Area, 25);
  EXPECT_DOUBLE_EQ(ChannelState.WettedPerimeter.Number(), 10 * std::sqrt(2.0));
  EXPECT_DOUBLE_EQ(ChannelState.HydraulicRadius.Number(), 25 / (10 * std::sqrt(2.0)));
  EXPECT_EQ(ChannelState.Velocity, "");
}

}  // namespace

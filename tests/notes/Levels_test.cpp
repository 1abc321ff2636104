// Every depth and every water level that carries a flow, against dense scans of random pipes and sections by
// a second method.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "engine/Problem.h"
#include "notes/Findings.h"

namespace {

constexpr double Grid = 0.001;  // ft
constexpr double Tolerance = 1e-6;

/// The curve passes the target within the tolerance of the level.
void ExpectCrossing(const std::function<double(double)>& curve, double level, double target) {
  const double below = curve(level - Tolerance) - target;
  const double above = curve(level + Tolerance) - target;
  EXPECT_TRUE((below <= 0 && above >= 0) || (below >= 0 && above <= 0)) << level;
}

using PipeLevels = EngineTest;

TEST_F(PipeLevels, BothDepthsOfRandomPipes) {
  Uniform random(16);
  for (int trial = 0; trial < 200; ++trial) {
    const double D = random(0.5, 8), n = random(0.009, 0.03), S = random(0.0001, 0.05);
    const auto flow = [&](double y) {
      const double angle = 2 * std::acos(1 - 2 * std::min(y, D) / D);
      const double A = (angle - std::sin(angle)) * D * D / 8;
      return Constants::ManningK / n * std::cbrt(std::pow(A, 5) / std::pow(D * angle / 2, 2)) * std::sqrt(S);
    };
    const double Q = flow(D) + random(0.01, 0.99) * (flow(0.938 * D) - flow(D));
    SetPipe(D, n, S);
    SolveDepth(Q);
    const Findings found = Examine(ChannelState);
    ASSERT_TRUE(found.Pipe->OtherDepth);
    const std::vector<double> depths = {found.Depth, *found.Pipe->OtherDepth};
    std::size_t bracketed = 0;
    double y = D / 2, before = flow(y);
    while (y < D) {
      const double after = flow(y + Grid);
      if ((before < Q) != (after < Q)) {
        ASSERT_LT(bracketed, 2U);
        EXPECT_NEAR(depths[bracketed++], y + Grid / 2, Grid / 2 + Tolerance);
      }
      before = after;
      y += Grid;
    }
    EXPECT_EQ(bracketed, 2U) << D << " ft, " << Q << " cfs";
    for (const double depth : depths) ExpectCrossing(flow, depth, Q);
  }
}

class SectionLevels : public EngineTest {
 protected:
  /// Ground with a flat and a gentle bench, on a grid of 0.05 ft, so that a step of the scan meets one
  /// elevation at most.
  static std::vector<Point> Ground(Uniform& random) {
    std::vector<Point> points;
    double x = 0;
    double e = 8;
    const int count = static_cast<int>(random(7, 14));
    for (int i = 0; i < count; ++i) {
      EngineValue n;
      if (i == 0 || random(0, 1) < 0.25) n = std::round(random(20, 80)) / 1000;
      points.push_back({x, e, n});
      const bool bench = i == 2 || random(0, 1) < 0.2;
      const bool gentle = i == 4;  // the flow falls over such ground, but not at once
      x += bench || gentle ? random(20, 100) : random(0.5, 20);
      if (!bench) e = gentle ? e + 0.1 : std::round(random(0, 160)) * 0.05;
    }
    return points;
  }

  struct Water {
    double Q = 0, A = 0, T = 0;
  };

  /// Flow, area and width at W, the ground under each piece of it by its mean wet depth times its wet width.
  static Water At(const std::vector<Point>& points, double W, double rootS) {
    Water water;
    double n = 0, A = 0, P = 0;
    const auto close = [&] {
      if (A > 0) water.Q += Constants::ManningK / n * rootS * std::cbrt(A * A * A * A * A / (P * P));
      water.A += A;
      A = P = 0;
    };
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
      if (!points[i].n.IsEmptyText()) {
        close();
        n = points[i].n.Number();
      }
      const double low = std::min(points[i].e, points[i + 1].e);
      const double rise = std::max(points[i].e, points[i + 1].e) - low;
      if (low >= W) continue;
      const double part = W - low < rise ? (W - low) / rise : 1;
      const double dx = part * (points[i + 1].x - points[i].x);
      A += dx * (W - low - part * rise / 2);
      P += std::sqrt(dx * dx + part * rise * part * rise);
      water.T += dx;
    }
    close();
    return water;
  }

  /// Each crossing of the scan is a level, or a fall at a bench; each level is a crossing.
  static void ExpectComplete(const std::vector<Point>& points, const std::function<double(double)>& curve,
                             double target, const LevelSearch& found) {
    const auto within = [](double a, double b) {
      return [=](double level) { return a - Tolerance <= level && level <= b + Tolerance; };
    };
    double before = curve(Grid / 2);
    for (int step = 0; step < 12 / Grid; ++step) {
      const double W = (step + 0.5) * Grid;
      const double after = curve(W + Grid);
      const auto bench = std::ranges::adjacent_find(
          points, [&](const Point& a, const Point& b) { return a.e == b.e && W <= a.e && a.e < W + Grid; });
      const bool drops =
          bench != points.end() && curve(bench->e) > target && curve(std::nextafter(bench->e, 99)) < target;
      if ((before < target) != (after < target)) {
        if (drops) {
          EXPECT_TRUE(std::ranges::any_of(found.Falls, [&](const FallingRange& fall) {
            return fall.From <= bench->e && bench->e <= fall.To;
          })) << bench->e;
        } else {
          EXPECT_TRUE(std::ranges::any_of(found.Levels, within(W, W + Grid))) << W;
        }
      }
      before = after;
    }
    for (const double level : found.Levels) ExpectCrossing(curve, level, target);
    EXPECT_TRUE(std::ranges::is_sorted(found.Levels));
  }

  /// Where the curve falls over a step of the scan, a falling range is near; where it rises, none holds the
  /// step.
  static void ExpectFalls(const std::function<double(double)>& curve, const LevelSearch& found) {
    double before = curve(Grid / 2);
    for (int step = 0; step < 12 / Grid; ++step) {
      const double W = (step + 0.5) * Grid;
      const double after = curve(W + Grid);
      const bool inside = std::ranges::any_of(
          found.Falls, [&](const FallingRange& fall) { return fall.From <= W && W + Grid <= fall.To; });
      const bool near = std::ranges::any_of(
          found.Falls, [&](const FallingRange& fall) { return fall.From <= W + Grid && W <= fall.To; });
      EXPECT_TRUE(near || !(after < before * (1 - 1e-9))) << W;
      EXPECT_FALSE(inside && after > before * (1 + 1e-9)) << W;
      before = after;
    }
  }
};

TEST_F(SectionLevels, EveryLevelOfRandomSections) {
  Uniform random(998);
  std::size_t several = 0;
  for (int trial = 0; trial < 200; ++trial) {
    const std::vector<Point> points = Ground(random);
    SCOPED_TRACE(trial);
    const double S = random(0.0002, 0.02);
    SetSection(points, S);
    const double low = std::ranges::min(points, {}, &Point::e).e;
    // Near a bench lie the flows of several levels.
    const double bench = points[trial % 3 == 1 ? 3 : 5].e;
    SolveFlow(trial % 3 == 0 ? low + random(0.1, 8) : std::max(low, bench + random(-0.3, 0.1)) + 0.053);
    if (trial % 2 == 0) SolveDepth(ChannelState.Flow);
    const Findings found = Examine(ChannelState);
    ASSERT_TRUE(found.Section);
    const auto flow = [&, rootS = std::sqrt(S)](double W) { return At(points, W, rootS).Q; };
    const auto factor = [&](double W) {
      const Water water = At(points, W, 1);
      return water.A > 0 ? water.A * std::sqrt(water.A / water.T) : 0;
    };
    const SectionFindings& section = *found.Section;
    ExpectComplete(points, flow, found.Flow, section.Flow);
    ExpectComplete(points, factor, found.Flow / std::sqrt(Constants::Gravity), section.Critical);
    ExpectFalls(flow, section.Flow);
    EXPECT_NEAR(section.Flow.Levels[section.Shown], ChannelState.Depth.Number(), 2 * Tolerance);
    if (section.Flow.Levels.size() > 1) ++several;
  }
  EXPECT_GT(several, 40U);
}

}  // namespace

// The searches that spare questions against the ones that ask them all.
#include "engine/Search.h"

#include <cmath>
#include <limits>
#include <optional>
#include <random>

#include "Problem.h"
#include "engine/ManningCircular.h"
#include "engine/SurveyedSection.h"
#include "plain/Problems.h"

namespace {

class SearchTest : public EngineTest, public testing::WithParamInterface<ProblemKind> {};

TEST_P(SearchTest, SameBitsAndFaultsAsThePlainLoop) {
  ProblemSource source(GetParam(), 5);
  for (int i = 0; i < 20000; ++i) {
    source.Next();
    ASSERT_EQ(Difference(), "");
  }
}

INSTANTIATE_TEST_SUITE_P(EachKind, SearchTest,
                         testing::Values(ProblemKind::Trapezoid, ProblemKind::Pipe, ProblemKind::Section));

using SearchEdges = EngineTest;

// Where every side of a comparison looks harmless and the formula faults, where the searches change over to
// the plain loop, and where what they take for rising rises least.
TEST_F(SearchEdges, ProblemsAtTheLimits) {
  const double greatest = 0x1p1023;
  struct Trapezoid {
    double b, zL, zR, n, S, Q;
  };
  for (const Trapezoid& c : {Trapezoid{1, 0, 0, 1e-306, 1e-300, 1e165},
                             {1, 0, 0, -0.03, 0.001, 100},
                             {1, 0, 0, 0, 0.001, 100},
                             {0, 0, 0, 0.03, 0.001, 100},
                             {0, 1e-20, 0, 1e20, 1e-20, 1e-20},
                             {1e20, 1e20, 1e20, 1e-20, 1e20, 1e20},
                             {1e-20, 0, 0, 0.03, 0.001, 1e-20},
                             {5, -2, 3, 0.03, 0.001, 100},
                             {5, -greatest, greatest, 0.03, 0.001, 100},
                             {5, 2, 3, 0.03, 0.001, 0},
                             {5, 2, 3, 0.03, 0.001, 1e19}}) {
    SetTrapezoid(c.b, c.zL, c.zR, c.n, c.S);
    for (const bool forFlow : {false, true}) {
      ChannelState.SolveForFlow = forFlow;
      ChannelState.Depth = 3;
      ChannelState.Flow = c.Q;
      EXPECT_EQ(Difference(), "");
    }
  }
  for (const double D : {1.1e-6, 1e-3, 0.0011, 6.0, 999.0, 1000.0, 1e5, 1e8, 1e12}) {
    SetPipe(D, 0.013, 0.002);
    ChannelState.SolveForFlow = false;
    ChannelState.Flow = ManningCircular::CircMaxFlow(D, 0.002, 0.013);
    for (int i = 0; i < 20; ++i) {
      ChannelState.Flow = std::nextafter(ChannelState.Flow.Number(), 0);
      EXPECT_EQ(Difference(), "");
    }
    for (const double n : {0.013, 1e-25, -0.013}) {
      SetPipe(D, n, 0.002);
      for (const double share : {0.0, 1e-12, 1e-6, 0.24999, 0.25001, 0.5, 0.99, 0.999999, 1 - 1e-12, 1.0}) {
        ChannelState.Flow = share * 1.485919 / n * std::sqrt(0.002) * 0.3353 * std::pow(D, 8 / 3.0);
        ChannelState.SolveForFlow = false;
        EXPECT_EQ(Difference(), "");
        ChannelState.Depth = share * D;
        ChannelState.SolveForFlow = true;
        EXPECT_EQ(Difference(), "");
      }
    }
  }
}

// Each of these levels is one that the pieces must leave to the segments, or decide in spite of a trap.
TEST_F(SearchEdges, SectionsWhoseFlowFallsOrHangsOnRounding) {
  const std::vector<std::vector<Point>> sections = {
      {{0, 10, 0.03}, {5, 0}, {10, 4}, {400, 4}, {401, 10}},           // the perimeter jumps at a bench
      {{0, 10, 0.03}, {0, 0}, {8, 0, 0.05}, {8, 10, 0.07}, {30, 10}},  // walls, one a subsection
      {{1e8, 10, 0.03}, {1e8 + 5, 0}, {1e8 + 10, 10}},                 // stations that round
      {{0, 1e-19, 0.03}, {10, 0}, {20, 3}},                            // a bank of next to no height
      {{0, 10, 0.03}, {10, 0}, {5, 3}, {20, 10}},                      // stations out of order
      {{0, 2000, 0.03}, {10, 0}, {20, 2000}},                          // higher than the search
      {{0, 10, 0.03}, {10, 0, -0.02}, {20, 10}},
      {{5, 7, 0.03}, {5, 7}, {5, 7}}};
  for (const auto& points : sections) {
    SetSection(points, 0.001);
    for (int power = 0; power < 78; ++power) {
      const double Q = 1e-9 * std::pow(1.7, power);
      for (const bool forFlow : {false, true}) {
        ChannelState.SolveForFlow = forFlow;
        ChannelState.Flow = Q;
        ChannelState.Depth = std::log10(Q) + 9;
        ASSERT_EQ(Difference(), "");
      }
    }
  }
}

TEST_F(SearchEdges, ASectionIsReadAnewWhenAnyCellChanges) {
  SetSection({{0, 10, 0.03}, {10, 0}, {20, 0, 0.05}, {30, 10}}, 0.001);
  const auto depth = [] {
    SolveDepth(500);
    return ChannelState.Depth.Number();
  };
  const double before = depth();
  struct Change {
    size_t row, column;
    EngineValue value;
  };
  for (const Change& change :
       {Change{1, 2, 9}, {4, 1, 31}, {2, 3, 0.04}, {3, 3, 0.06}, {3, 3, ""}, {3, 2, "0.5"}}) {
    EngineValue& cell = ChannelState.IrregEnginePoints[change.row][change.column];
    const EngineValue old = std::exchange(cell, change.value);
    EXPECT_EQ(Difference(), "");
    EXPECT_NE(depth(), before) << change.row << ' ' << change.column;
    cell = old;
    EXPECT_EQ(depth(), before);
  }
  ChannelState.IrregPointCount = 3;
  EXPECT_NE(depth(), before);
}

// The function asked, and how often.
struct Asked {
  bool operator()(double y) {
    ++times;
    return y < root;
  }
  double root;
  int times = 0;
};

TEST(Search, AWrongGuessIsSearchedPlainly) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const double root : {1e-9, 0.3, 12.34, 700.0, 998.9999, 2000.0}) {
    Asked plain{root};
    const double y = Bisect(0, 999, std::ref(plain)).y;
    EXPECT_EQ(plain.times, 30);
    for (const double guess : {root, 0.0, root - 3e-6, root + 3e-6, 500.0, 1e300, -1.0, nan}) {
      Asked open{root};
      EXPECT_EQ(Search::JumpInOpenChannel(guess, std::ref(open)), y) << root << ' ' << guess;
      Asked jump{root};
      EXPECT_EQ(Search::Jump(0, 999, guess, std::ref(jump)), y) << root << ' ' << guess;
      if (guess == root) {
        EXPECT_LE(open.times, 2);
        EXPECT_LE(jump.times, 2);
      } else if (std::abs(guess - root) < 4e-6 && root > 0.1 && root < 999) {  // one interval off
        EXPECT_GE(open.times, 30);
        EXPECT_GE(jump.times, 30);
      }
    }
  }
}

TEST(Search, PowersAndGuessesAreAsCloseAsDocumented) {
  for (int step = -6800; step <= 6800; ++step) {
    const double x = std::pow(1.0137, step);
    for (const double exponent : {1 / 8.0, 1 / 3.0, 2 / 3.0})
      ASSERT_NEAR(Search::RoughPower(x, exponent) / std::pow(x, exponent), 1, 0.07) << x;
  }
  EXPECT_EQ(Search::Power<5>(3), 243);
  for (const double start : {1.0, 2.9, 40.0}) {
    const double root = Search::GuessRoot(start, [](double x) -> Search::Sides {
      return {x * x * x + x, 30, (3 * x * x + 1) / (x * x + 1)};
    });
    EXPECT_NEAR(root, 3, 3e-9) << start;
  }
}

// A poor start of a guess or a slip in its equation costs steps or a plain search. Each problem makes two
// guesses, of its normal and of its critical depth.
TEST_F(SearchEdges, GuessesInUsualChannelsSettleSoon) {
  std::mt19937_64 random(3);
  const auto between = [&](double low, double high) {
    return std::uniform_real_distribution(low, high)(random);
  };
  constexpr int Count = 4000;
  Search::StepsTaken = Search::WrongGuesses = 0;
  for (int i = 0; i < Count; ++i) {
    SetTrapezoid(between(0, 30), between(0, 4), between(0, 4), 0.03, between(1e-4, 0.02));
    SolveDepth(between(1, 5000));
  }
  EXPECT_EQ(Search::WrongGuesses, 0);
  EXPECT_LT(Search::StepsTaken, 2.7 * (2 * Count));
  Search::StepsTaken = Search::WrongGuesses = 0;
  for (int i = 0; i < Count; ++i) {
    const double D = between(0.5, 12), S = between(1e-4, 0.02);
    SetPipe(D, 0.013, S);
    SolveDepth(between(0, 1) * ManningCircular::CircMaxFlow(D, S, 0.013));
  }
  EXPECT_LT(Search::WrongGuesses, 0.001 * (2 * Count));
  EXPECT_LT(Search::StepsTaken, 3.05 * (2 * Count));
}

using SurveyedSectionTest = EngineTest;

// A = 10 t + t^2 in two halves of one n each; water too thin to decide is left to the segments.
TEST_F(SurveyedSectionTest, DecideWhatTheyCan) {
  const auto points = Table({{100, 10, 0.02}, {110, 0}, {115, 0, 0.04}, {120, 0}, {130, 10}});
  ManningIrreg::SurveyedSection pieces(points, 5);
  for (const double t : {1e-3, 4.0, 10.0, 12.0}) {
    const double m = std::min(t, 10.0), A = 10 * t + m * m + 2 * m * (t - m), T = 10 + 2 * m;
    const double P = 10 + 2 * m * std::sqrt(2.0);
    const double Q = 0.1 * 1.485919 * (1 / 0.02 + 1 / 0.04) * A / 2 * std::pow(A / P, 2 / 3.0);
    const double Z = A * std::sqrt(A / T);
    EXPECT_EQ(pieces.FlowIsBelow(t, 0.1, Q * (1 + 1e-9)), true);
    EXPECT_EQ(pieces.FlowIsBelow(t, 0.1, Q * (1 - 1e-9)), false);
    EXPECT_EQ(pieces.FlowIsBelow(t, 0.1, Q), std::nullopt);
    EXPECT_EQ(pieces.FactorIsBelow(t, Z * (1 + 1e-9)), true);
    EXPECT_EQ(pieces.FactorIsBelow(t, Z * (1 - 1e-9)), false);
    EXPECT_EQ(pieces.FactorIsBelow(t, Z), std::nullopt);
  }
  EXPECT_EQ(pieces.FlowIsBelow(0, 0.1, 1), std::nullopt);
  EXPECT_EQ(pieces.FlowIsBelow(4, 0.1, 1e-21), std::nullopt);
  EXPECT_EQ(pieces.FactorIsBelow(-1, 1), std::nullopt);
  const auto slit = Table({{0, 10, 0.02}, {1e6, 10}, {1e6 + 1e-6, 0}, {1e6 + 2e-6, 10}});
  EXPECT_EQ(ManningIrreg::SurveyedSection(slit, 4).FactorIsBelow(1e-4, 1), std::nullopt);
}

}  // namespace

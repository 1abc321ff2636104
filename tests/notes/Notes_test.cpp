// The notes of problems worked by hand.
#include "notes/Notes.h"

#include <gmock/gmock.h>

#include <array>
#include <charconv>
#include <cmath>

#include "engine/ManningTrap.h"
#include "engine/Problem.h"

namespace {

using testing::Not;

/// Feet with three decimals, results with three significant digits.
class InFeet : public Spelling {
 public:
  std::string Length(double feet) const override { return Text(feet, std::chars_format::fixed, 3) + " ft"; }
  std::string Flow(double cfs) const override { return Text(cfs, std::chars_format::fixed, 1) + " cfs"; }
  std::string Number(double x) const override { return Text(x, std::chars_format::general, 4); }
  double LastPlace(Cell, double value) const override {
    return std::pow(10, std::floor(std::log10(std::abs(value))) - 2);
  }

 private:
  static std::string Text(double x, std::chars_format format, int precision) {
    std::array<char, 64> text{};
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), x, format, precision).ptr};
  }
};

class NotesTest : public EngineTest {
 protected:
  static void SetRectangle(double n, double S) {
    SetTrapezoid(10, 0, 0, n, S);
    ChannelState.ChannelType = ChannelTypes::Rectangular;
  }

  using Texts = std::vector<std::string>;
  /// The verdict, and the short texts of the notes that are counted.
  static void ExpectDepth(double flow, const std::string& verdict, const Texts& counted = {}) {
    SolveDepth(flow);
    ExpectNotes("Depth solved: " + verdict, counted);
  }
  static void ExpectFlow(double depth, const std::string& verdict, const Texts& counted = {}) {
    SolveFlow(depth);
    ExpectNotes("Flow solved: " + verdict, counted);
  }

 private:
  static void ExpectNotes(const std::string& verdict, const Texts& expected) {
    SCOPED_TRACE(verdict);
    const Findings found = Examine(ChannelState);
    const std::vector<Note> notes = NotesOn(found, InFeet());
    EXPECT_EQ(Verdict(found, notes), verdict);
    Texts counted;
    for (const Note& note : notes) {
      if (note.Phrase.empty()) counted.push_back(note.Short);
      for (const std::string& text : {note.Phrase, note.Short, note.Long, note.Source})
        EXPECT_THAT(text, Not(testing::ContainsRegex("[{}]|nan|inf")));
      EXPECT_FALSE(note.Long.empty() || note.Source.empty()) << note.Short;
    }
    EXPECT_EQ(counted, expected);
  }
};

TEST_F(NotesTest, PrismsByHand) {
  SetTrapezoid(20, 2, 3, 0.025, 0.0016);
  ExpectDepth(400, "subcritical");
  SetRectangle(0.013, 0.15);
  ExpectDepth(100, "supercritical", {"Steep: the depth is measured at right angles to the bed"});
  SetRectangle(0.016, 0.004);
  ExpectFlow(1, "subcritical, near critical");
  const double yc = 1.459367787;  // (10^2 / g)^(1/3)
  SetRectangle(0.013, ManningTrap::TrapCriticalSlope(yc, 10, 0, 0, 0.013, 100));
  ExpectFlow(yc, "critical");
  SetRectangle(0.35, 0.002);
  ExpectDepth(1, "subcritical", {"Unusual roughness: n = 0.35"});
  SetRectangle(0.005, 0.004);
  ExpectDepth(0.0001, "subcritical",
              {"The last digit shown is not certain: flow area, hydraulic radius, velocity, velocity head, "
               "Froude number and critical slope",
               "Unusual roughness: n = 0.005"});
}

TEST_F(NotesTest, PipesByHand) {
  SetPipe(6, 0.013, 0.002);
  ExpectDepth(100, "subcritical, 52 % deep, 49 % of the greatest flow");
  ExpectDepth(200, "subcritical, 88 % deep, 98 % of the greatest flow",
              {"Two depths carry this flow: 5.297 ft, in the box, and 5.883 ft"});
  ExpectFlow(5.883473148803879, "subcritical, 98 % deep, 98 % of the greatest flow",
             {"Two depths carry this flow: 5.883 ft, in the box, and 5.297 ft"});
  ExpectFlow(6, "full pipe, 93 % of the greatest flow",
             {"Two depths carry this flow: 6.000 ft, in the box, and 4.918 ft"});
}

TEST_F(NotesTest, SectionsByHand) {
  // A channel 10 ft wide and 2 ft deep between two benches of 20 ft, all walls upright.
  SetSection({{0, 4, 0.03}, {0, 2}, {20, 2}, {20, 0}, {30, 0}, {30, 2}, {50, 2}, {50, 4}}, 0.016);
  ExpectDepth(113.4, "subcritical, near critical",
              {"2 water levels carry this flow: 1.595 ft and 2.162 ft; the box shows the lowest",
               "The flow falls while the water rises: at 2.000 ft",
               "The flow is critical at 2 water levels: 1.587 ft and 2.143 ft; the box shows the lowest"});
  SetSection({{0, 1, 0.03}, {10, 0}, {20, 0.5}}, 0.001);
  ExpectFlow(2, "subcritical",
             {"The water stands 1.000 ft above the first point and 1.500 ft above the last point of the "
              "section"});
  SetSection({{0, 3, 0.03}, {10, 0}, {20, 2}, {30, 1}, {40, 3}}, 0.001);
  ExpectFlow(1.5, "subcritical",
             {"Water behind a crest that the main channel does not reach carries 17 % of the flow"});
  SetSection({{0, 5, 0.03}, {10, 0}, {20, 0, 0.03}, {30, 5}}, 0.001);
  ExpectFlow(2, "subcritical", {"The same n is repeated: with one n the flow would be 56.9 cfs"});
}

TEST_F(NotesTest, NothingSolvedHasNoNotes) {
  SetPipe(6, 0.013, 0.002);
  SolveDepth(1000);
  EXPECT_FALSE(Examine(ChannelState).Solved);
  EXPECT_TRUE(NotesOn(Examine(ChannelState), InFeet()).empty());
}

TEST_F(NotesTest, NumbersOfThePipeAndOfThePools) {
  SetPipe(6, 0.013, 0.002);
  SolveDepth(200);
  const Findings pipe = Examine(ChannelState);
  EXPECT_NEAR(pipe.Pipe->FullFlow, 189.38838312988142, 1e-9);
  EXPECT_NEAR(pipe.Pipe->GreatestFlow, 203.7261948814112, 1e-9);
  ASSERT_TRUE(pipe.Pipe->OtherDepth);
  EXPECT_NEAR(*pipe.Pipe->OtherDepth, 5.883473148803879, 1e-6);
  SolveDepth(pipe.Pipe->FullFlow);
  EXPECT_EQ(Examine(ChannelState).Pipe->OtherDepth, 6);

  SetSection({{0, 3, 0.03}, {10, 0}, {20, 2}, {30, 1}, {40, 3}}, 0.001);
  SolveFlow(1.5);
  const Findings section = Examine(ChannelState);
  ASSERT_EQ(section.Section->Pools.size(), 1U);
  EXPECT_NEAR(section.Section->Pools[0].From, 25, 1e-12);
  EXPECT_NEAR(section.Section->Pools[0].To, 32.5, 1e-12);
  EXPECT_NEAR(section.Section->Pools[0].Share, 1.875 / 11.25, 1e-12);
}

}  // namespace

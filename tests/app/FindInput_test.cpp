// Whatever input is taken away, flow and depth together bring it back.
#include "app/main/FindInput.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

#include "app/Declarations.h"
#include "app/Units.h"
#include "app/main/Problem.h"
#include "app/main/frmMain.h"
#include "engine/ChannelState.h"
#include "engine/NumberText.h"
#include "engine/SolveChannel.h"

namespace {

class FindInputTest : public testing::Test {
 protected:
  FindInputTest() { Declarations::Reset(); }

  double Between(double least, double most) {
    return least +
           (most - least) * static_cast<double>(chance_()) / static_cast<double>(decltype(chance_)::max());
  }

  /// An ordinary problem, in feet or in metres, with the water at most at the crown.
  void TypeOrdinary() {
    const double length = ChannelState.UnitsEorM == Units::Metric ? 0.3 : 1;
    const double inch = ChannelState.UnitsEorM == Units::Metric ? 25 : 1;
    const double diameter = Between(12, 120);
    const auto type = [this](TextBox frmMain::*box, double x) { TextOf(FieldOf(box)) = PlainNumber(x); };
    type(&frmMain::tbSlope, Between(0.0001, 0.05));
    type(&frmMain::tbMann, Between(0.01, 0.1));
    type(&frmMain::tbBaseWidth, Between(1, 30) * length);
    type(&frmMain::tbSSL, Between(0.2, 4));
    type(&frmMain::tbSSR, Between(0.2, 4));
    type(&frmMain::tbDiameter, diameter * inch);
    type(&frmMain::tbDepth, Between(0.05, 0.99) * diameter / 12 * length);
  }

  std::string& TextOf(const Field& field) { return *Problem::ItemOf(typed_, field); }
  void Type(const Findable& wanted, const std::string& text) {
    for (const Field* const input : wanted.Inputs) TextOf(*input) = text;
  }
  FoundInput Found(const Findable& wanted) {
    return FindInput(wanted, [this](const Field& field) -> const std::string& { return TextOf(field); });
  }

  /// Solved for it, in the unit on display.
  double Flow() {
    ChannelState.SolveForFlow = true;
    Problem::TakeInputs([this](const Field& field) -> const std::string& { return TextOf(field); });
    SolveChannel();
    return ChannelState.Flow.Number() / UnitFactor(ChannelState.UnitsEorM, Units::Flow);
  }

  /// What is taken away comes back, from any mode, and the record stays as it was.
  void GoAndComeBack(const Findable& wanted) {
    for (int i = 0; i < 1000; ++i) {
      ChannelState.UnitsEorM = i % 2;
      TypeOrdinary();
      const std::string was = TextOf(*wanted.Inputs.front());
      Type(wanted, was);
      const double flow = Flow();
      TextOf(FieldOf(&frmMain::tbFlow)) = PlainNumber(flow);
      Type(wanted, "");
      ChannelState.SolveForFlow = i % 3 == 0;
      const ChannelRecord before = ChannelState;
      const FoundInput found = Found(wanted);
      ASSERT_EQ(ChannelState.Flow, before.Flow);
      ASSERT_EQ(ChannelState.SolveForFlow, before.SolveForFlow);
      Type(wanted, found.Text);
      ASSERT_NEAR(Flow(), flow, 1e-6 * flow) << found.Text << " was " << was << found.WhyNone;
      ASSERT_NEAR(LeadingNumber(found.Text), LeadingNumber(was), 1e-3 * LeadingNumber(was));
    }
  }

  /// There is one value only because the flow never turns.
  void FlowNeverTurns(const Findable& wanted) {
    const Field& input = *wanted.Inputs.front();
    const bool rises = input.Box != &frmMain::tbMann;
    for (int i = 0; i < 20; ++i) {
      ChannelState.UnitsEorM = Units::English;
      TypeOrdinary();
      const bool isPipe = input.Box == &frmMain::tbDiameter;
      double x = isPipe ? 12 * LeadingNumber(TextOf(FieldOf(&frmMain::tbDepth))) : 1e-3;
      double before = rises ? 0 : HUGE_VAL;
      while (x < input.Bounds.Max.value_or(1e4)) {
        Type(wanted, PlainNumber(x));
        const double flow = Flow();
        ASSERT_EQ(flow > before, rises) << x;
        before = flow;
        x *= 1.1;
      }
    }
  }

  ProjectFile::Project typed_;
  std::mt19937 chance_{8};
};

TEST_F(FindInputTest, BringsBackTheOneValueThereIs) {
  for (const std::string_view type : {ChannelTypes::Trapezoidal, ChannelTypes::Circular}) {
    ChannelState.ChannelType = type;
    for (const Findable& wanted : FindableInputs()) {
      SCOPED_TRACE(ChannelState.ChannelType + ", " + wanted.Name);
      GoAndComeBack(wanted);
      FlowNeverTurns(wanted);
    }
  }
}

}  // namespace

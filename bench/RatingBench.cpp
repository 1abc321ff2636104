// What a rating series costs beside its engine operations, alone and as a table: solving for depth, the flow
// varied.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cmath>
#include <functional>
#include <string>

#include "app/Units.h"
#include "engine/ChannelState.h"
#include "engine/SolveChannel.h"
#include "program/Program.h"
#include "rating/RatingSeries.h"
#include "rating/frmTable.h"
#include "support/FakeServices.h"

namespace {

class NoScreen : public WindowHost {
  void Open(Form&) override {}
  void Wait(Form&) override {}
};

/// A main window with nothing typed in: it leaves the record alone.
const frmMain& EmptyWindow() {
  static FakeServices fakes;
  static NoScreen screen;
  static const Program program(fakes.With(screen));
  return program.Main;
}

/// Sets the problem up, to be solved for the depth of a flow.
void Begin(std::string_view type, double slope, double roughness) {
  ChannelState = ChannelRecord{};
  ChannelState.ChannelType = type;
  ChannelState.Slope = slope;
  ChannelState.ManningN = roughness;
}

void Trapezoid() {
  Begin(ChannelTypes::Trapezoidal, 0.0016, 0.025);
  ChannelState.BaseWidth = 20;
  ChannelState.SideSlopeLeft = 2;
  ChannelState.SideSlopeRight = 3;
}

void Circle() {
  Begin(ChannelTypes::Circular, 0.002, 0.013);
  ChannelState.Diameter = 6;
}

/// A valley of 100 points, uneven at the bottom, with a channel between flood plains.
void Valley() {
  Begin(ChannelTypes::Irregular, 0.001, 0);
  ChannelState.IrregPointCount = 100;
  for (int i = 0; i < 100; ++i) {
    const double fromMiddle = i - 49.5;
    auto& point = ChannelState.IrregEnginePoints[static_cast<std::size_t>(i) + 1];
    point[1] = 4.0 * i + std::sin(i);
    point[2] = 100 + fromMiddle * fromMiddle / 60 + std::sin(3.0 * i);
  }
  ChannelState.IrregEnginePoints[1][3] = 0.06;
  ChannelState.IrregEnginePoints[36][3] = 0.03;
  ChannelState.IrregEnginePoints[66][3] = 0.07;
}

/// So many flows up to the last one.
void SetRange(int points, double lastFlow) {
  const double step = lastFlow / points;
  RatingRange = {Units::Flow, 2, step, lastFlow, step, false};
}

void Operations(benchmark::State& state) {
  const double step = RatingRange.RangeStep.Number();
  for (auto _ : state) {
    for (double Q = RatingRange.RangeMin.Number(); Q <= RatingRange.RangeMax.Number(); Q += step) {
      ChannelState.Flow = Q;
      SolveChannel();
    }
  }
}

void Series(benchmark::State& state) {
  for (auto _ : state) RunRatingSeries(EmptyWindow(), RatingRange, LastValue::Snapped, [](int) {});
}

/// Also tells the bytes that the table holds.
void Table(benchmark::State& state) {
  const std::size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
  frmTable table(EmptyWindow());
  for (auto _ : state) table.LoadTable();
  state.counters["rows"] = table.MSFlexGrid1.Rows();
  state.counters["bytes"] = static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd - before);
}

void Register(const std::string& name, void (*problem)(), double lastFlow, int points,
              void (*measure)(benchmark::State&)) {
  benchmark::RegisterBenchmark((name + std::to_string(points)).c_str(), [=](benchmark::State& state) {
    problem();
    SetRange(points, lastFlow);
    measure(state);
  })->Unit(benchmark::kMicrosecond);
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  EmptyWindow();  // now: a new program empties the record
  struct Case {
    const char* Name;
    void (*Problem)();
    double LastFlow;
  };
  for (const Case& each : {Case{"trapezoid", Trapezoid, 4000}, Case{"circle", Circle, 150},
                           Case{"100 points, 3 n", Valley, 20000}}) {
    const std::string name = each.Name;
    for (const int points : {200, 10000}) {
      Register(name + ", operations ", each.Problem, each.LastFlow, points, Operations);
      Register(name + ", series ", each.Problem, each.LastFlow, points, Series);
    }
    Register(name + ", table ", each.Problem, each.LastFlow, 10000, Table);
  }
  benchmark::RunSpecifiedBenchmarks();
}

// What a rating series costs beside its engine operations, alone and as a table: solving for depth, the flow
// varied.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <functional>
#include <string>

#include "RatingProblems.h"
#include "app/Declarations.h"
#include "engine/ChannelState.h"
#include "engine/SolveChannel.h"
#include "rating/RatingSeries.h"
#include "rating/frmTable.h"

using namespace RatingProblems;

namespace {

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

/// Also reports the bytes that the table holds.
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

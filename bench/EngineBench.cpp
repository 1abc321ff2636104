// What the six operations cost beside the bare loop of their arithmetic, in one run. Before anything is
// timed, the results of both are compared bit for bit.
#include <benchmark/benchmark.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "BareLoops.h"
#include "engine/ChannelState.h"
#include "engine/SolveChannel.h"

namespace {

using BareLoops::Results;

struct Case {
  std::string Name;
  std::function<void()> FillRecord;
  std::function<Results(double)> FlowFromDepth;
  std::function<Results(double)> DepthFromFlow;
  double Depth;
  double Flow;
};

void FillRecord(std::string_view type) {
  ChannelState = ChannelRecord{};
  ChannelState.ChannelType = type;
}

Case Trapezoid() {
  const BareLoops::TrapInputs in{20, 2, 3, 0.025, 0.0016};
  return {"trapezoid",
          [in] {
            FillRecord(ChannelTypes::Trapezoidal);
            ChannelState.BaseWidth = in.b;
            ChannelState.SideSlopeLeft = in.zL;
            ChannelState.SideSlopeRight = in.zR;
            ChannelState.ManningN = in.n;
            ChannelState.Slope = in.S;
          },
          [in](double y) { return BareLoops::TrapFlow(in, y); },
          [in](double Q) { return BareLoops::TrapDepth(in, Q); },
          3.5,
          400};
}

Case Circle() {
  const BareLoops::CircInputs in{6, 0.013, 0.002};
  return {"circle",
          [in] {
            FillRecord(ChannelTypes::Circular);
            ChannelState.Diameter = in.D;
            ChannelState.ManningN = in.n;
            ChannelState.Slope = in.S;
          },
          [in](double y) { return BareLoops::CircFlow(in, y); },
          [in](double Q) { return BareLoops::CircDepth(in, Q); },
          3.5,
          100};
}

// A valley of 100 points, uneven at the bottom, with flood plains where there are three n.
Case Valley(size_t roughnesses) {
  BareLoops::IrregInputs in;
  for (int i = 0; i < 100; ++i) {
    const double fromMiddle = i - 49.5;
    in.x.push_back(4.0 * i + std::sin(i));
    in.e.push_back(100 + fromMiddle * fromMiddle / 60 + std::sin(3.0 * i));
  }
  in.starts = roughnesses == 1 ? std::vector<size_t>{0} : std::vector<size_t>{0, 35, 65};
  in.n = roughnesses == 1 ? std::vector<double>{0.035} : std::vector<double>{0.06, 0.03, 0.07};
  in.S = 0.001;
  return {"100 points, " + std::to_string(roughnesses) + " n",
          [in] {
            FillRecord(ChannelTypes::Irregular);
            ChannelState.Slope = in.S;
            ChannelState.IrregPointCount = static_cast<int>(in.x.size());
            for (size_t i = 0; i < in.x.size(); ++i) {
              ChannelState.IrregEnginePoints[i + 1][1] = in.x[i];
              ChannelState.IrregEnginePoints[i + 1][2] = in.e[i];
            }
            for (size_t s = 0; s < in.n.size(); ++s) {
              ChannelState.IrregEnginePoints[in.starts[s] + 1][3] = in.n[s];
            }
          },
          [in](double W) { return BareLoops::IrregFlow(in, W); },
          [in](double Q) { return BareLoops::IrregDepth(in, Q); },
          112,
          20000};
}

void Prepare(const Case& problem, bool solveForFlow) {
  problem.FillRecord();
  ChannelState.SolveForFlow = solveForFlow;
  ChannelState.Depth = problem.Depth;
  ChannelState.Flow = problem.Flow;
}

Results RunBare(const Case& problem, bool solveForFlow) {
  return solveForFlow ? problem.FlowFromDepth(problem.Depth) : problem.DepthFromFlow(problem.Flow);
}

bool SameBits(const Case& problem, bool solveForFlow) {
  Prepare(problem, solveForFlow);
  SolveChannel();
  const auto& s = ChannelState;
  const Results record = {s.Depth.Number(),
                          s.Flow.Number(),
                          s.Area.Number(),
                          s.WettedPerimeter.Number(),
                          s.HydraulicRadius.Number(),
                          s.Velocity.Number(),
                          s.VelocityHead.Number(),
                          s.TopWidth.Number(),
                          s.Froude.Number(),
                          s.CriticalDepth.Number(),
                          s.CriticalSlope.Number()};
  const Results bare = RunBare(problem, solveForFlow);
  for (size_t i = 0; i < bare.size(); ++i) {
    if (std::bit_cast<std::uint64_t>(record[i]) == std::bit_cast<std::uint64_t>(bare[i])) continue;
    std::fprintf(stderr, "%s: result %zu is %.17g, the bare loop has %.17g\n", problem.Name.c_str(), i,
                 record[i], bare[i]);
    return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  for (const Case& problem : {Trapezoid(), Circle(), Valley(1), Valley(3)}) {
    for (const bool solveForFlow : {false, true}) {
      if (!SameBits(problem, solveForFlow)) return 1;
      const std::string name = problem.Name + (solveForFlow ? ", flow" : ", depth");
      benchmark::RegisterBenchmark((name + ", operation").c_str(), [=](benchmark::State& state) {
        Prepare(problem, solveForFlow);
        for (auto _ : state) SolveChannel();
      });
      benchmark::RegisterBenchmark((name + ", bare loop").c_str(), [=](benchmark::State& state) {
        for (auto _ : state) {
          Results results = RunBare(problem, solveForFlow);
          benchmark::DoNotOptimize(results);
        }
      });
    }
  }
  benchmark::RunSpecifiedBenchmarks();
}

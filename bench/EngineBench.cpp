// What the operations of the engine cost beside the plain loops, in one run. Each problem is solved by both
// and compared bit for bit before anything is timed. A sequence of problems is timed rather than one: a
// processor learns the jumps of a problem that it meets again and again.
//
// Usage: engine_bench [ROUNDS]
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

#include "engine/ChannelState.h"
#include "engine/SolveChannel.h"
#include "plain/PlainLoops.h"
#include "plain/Problems.h"

namespace {

// A number of the record for each problem.
struct Varied {
  EngineValue ChannelRecord::*cell;
  std::vector<double> values;
};

struct Sequence {
  std::string name;
  std::function<void()> setUp;
  bool solveForFlow;
  std::vector<Varied> varied;
};

constexpr size_t Problems = 2000;

std::vector<double> Rising(double last) {
  std::vector<double> values;
  for (size_t i = 1; i <= Problems; ++i) values.push_back(last * static_cast<double>(i) / Problems);
  return values;
}

std::vector<double> Random(double low, double high, unsigned seed) {
  std::mt19937_64 random(seed);
  std::uniform_real_distribution<double> exponent(std::log(low), std::log(high));
  std::vector<double> values;
  for (size_t i = 0; i < Problems; ++i) values.push_back(std::exp(exponent(random)));
  return values;
}

void Begin(std::string_view type, double n, double S) {
  ChannelState = ChannelRecord{};
  ChannelState.ChannelType = type;
  ChannelState.ManningN = n;
  ChannelState.Slope = S;
}

void Trapezoid() {
  Begin(ChannelTypes::Trapezoidal, 0.025, 0.0016);
  ChannelState.BaseWidth = 20;
  ChannelState.SideSlopeLeft = 2;
  ChannelState.SideSlopeRight = 3;
}

void Pipe() {
  Begin(ChannelTypes::Circular, 0.013, 0.002);
  ChannelState.Diameter = 6;
}

// A valley of 100 points, uneven at the bottom, with flood plains where there are three n.
void Valley(size_t roughnesses) {
  Begin(ChannelTypes::Irregular, 0, 0.001);
  ChannelState.IrregPointCount = 100;
  for (int i = 0; i < 100; ++i) {
    const double fromMiddle = i - 49.5;
    auto& point = ChannelState.IrregEnginePoints[static_cast<size_t>(i) + 1];
    point[1] = 4.0 * i + std::sin(i);
    point[2] = 100 + fromMiddle * fromMiddle / 60 + std::sin(3.0 * i);
  }
  ChannelState.IrregEnginePoints[1][3] = 0.035;
  if (roughnesses == 3) {
    ChannelState.IrregEnginePoints[36][3] = 0.03;
    ChannelState.IrregEnginePoints[66][3] = 0.07;
  }
}

// The random flows of a pipe: shares of what each carries.
std::vector<double> PipeFlows(const std::vector<double>& D, const std::vector<double>& n,
                              const std::vector<double>& S) {
  std::vector<double> values = Random(0.01, 0.99, 9);
  for (size_t i = 0; i < values.size(); ++i)
    values[i] *= 0.49 / n[i] * std::pow(D[i], 8 / 3.0) * std::sqrt(S[i]);
  return values;
}

std::vector<Sequence> Sequences() {
  constexpr auto Q = &ChannelRecord::Flow;
  constexpr auto y = &ChannelRecord::Depth;
  constexpr auto n = &ChannelRecord::ManningN;
  constexpr auto S = &ChannelRecord::Slope;
  std::vector<Sequence> all;
  const auto randomN = Random(0.01, 0.1, 1), randomS = Random(1e-5, 0.05, 2), randomD = Random(0.5, 20, 3);
  std::vector<Varied> prismatic = {{n, randomN},
                                   {S, randomS},
                                   {&ChannelRecord::BaseWidth, Random(0.5, 100, 4)},
                                   {&ChannelRecord::SideSlopeLeft, Random(0.1, 6, 5)},
                                   {&ChannelRecord::SideSlopeRight, Random(0.1, 6, 6)}};
  std::vector<Varied> pipes = {{n, randomN}, {S, randomS}, {&ChannelRecord::Diameter, randomD}};
  std::vector<double> pipeDepths = Random(0.02, 1, 7);
  for (size_t i = 0; i < Problems; ++i) pipeDepths[i] *= randomD[i];
  const auto with = [](std::vector<Varied> varied, EngineValue ChannelRecord::*cell,
                       std::vector<double> values) {
    varied.push_back({cell, std::move(values)});
    return varied;
  };
  all.push_back({"trapezoid, depth, series", Trapezoid, false, {{Q, Rising(4000)}}});
  all.push_back({"trapezoid, depth, random", Trapezoid, false, with(prismatic, Q, Random(0.1, 1e5, 7))});
  all.push_back({"trapezoid, flow, series", Trapezoid, true, {{y, Rising(12)}}});
  all.push_back({"trapezoid, flow, random", Trapezoid, true, with(prismatic, y, Random(0.05, 30, 7))});
  all.push_back({"pipe, depth, series", Pipe, false, {{Q, Rising(150)}}});
  all.push_back({"pipe, depth, random", Pipe, false, with(pipes, Q, PipeFlows(randomD, randomN, randomS))});
  all.push_back({"pipe, flow, series", Pipe, true, {{y, Rising(6)}}});
  all.push_back({"pipe, flow, random", Pipe, true, with(pipes, y, pipeDepths)});
  for (const size_t roughnesses : {1, 3}) {
    const std::string name = "100 points, " + std::to_string(roughnesses) + " n, ";
    const auto valley = [roughnesses] { Valley(roughnesses); };
    std::vector<double> levels = Rising(20), randomLevels = Random(0.5, 40, 8);
    for (double& level : levels) level += 99.5;
    for (double& level : randomLevels) level += 99.5;
    all.push_back({name + "depth, series", valley, false, {{Q, Rising(20000)}}});
    all.push_back({name + "depth, random", valley, false, {{Q, Random(1, 1e5, 7)}, {S, randomS}}});
    all.push_back({name + "flow, series", valley, true, {{y, levels}}});
    all.push_back({name + "flow, random", valley, true, {{y, randomLevels}, {S, randomS}}});
    // Each problem a section of its own: what one keystroke costs after a change of the points.
    all.push_back({name + "depth, new section", valley, false, {{Q, Rising(20000)}}});
    all.push_back({name + "flow, new section", valley, true, {{y, levels}}});
  }
  return all;
}

template <typename Solve>
void RunAll(const Sequence& sequence, Solve solve) {
  const bool newSection = sequence.name.ends_with("new section");
  for (size_t i = 0; i < Problems; ++i) {
    for (const Varied& each : sequence.varied) ChannelState.*each.cell = each.values[i];
    if (newSection) ChannelState.IrregEnginePoints[1][2] = 140 + static_cast<double>(i) / 1024;
    solve();
  }
}

template <typename Solve>
double Nanoseconds(const Sequence& sequence, Solve solve) {
  const std::clock_t start = std::clock();
  RunAll(sequence, solve);
  return static_cast<double>(std::clock() - start) * (1e9 / CLOCKS_PER_SEC / Problems);
}

double Median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                   values.end());
  return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 101;
  const std::string only = argc > 2 ? argv[2] : "";
  std::printf("%-36s %10s %10s %6s\n", "problems", "plain ns", "engine ns", "ratio");
  for (const Sequence& sequence : Sequences()) {
    if (sequence.name.find(only) == std::string::npos) continue;
    sequence.setUp();
    ChannelState.SolveForFlow = sequence.solveForFlow;
    std::string difference;
    RunAll(sequence, [&] {
      if (difference.empty()) difference = Difference();
    });
    if (!difference.empty()) {
      std::fprintf(stderr, "%s\n", difference.c_str());
      return 1;
    }
    std::vector<double> plain, engine, ratio;
    for (int round = 0; round < rounds; ++round) {
      plain.push_back(Nanoseconds(sequence, PlainLoops::SolveChannel));
      engine.push_back(Nanoseconds(sequence, SolveChannel));
      ratio.push_back(engine.back() / plain.back());
    }
    std::printf("%-36s %10.0f %10.0f %6.2f\n", sequence.name.c_str(), Median(plain), Median(engine),
                Median(ratio));
  }
}

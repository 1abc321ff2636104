// What forming all notes costs beside one plain solve of the same problem.
//
// Usage: notes_bench [ROUNDS]
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

#include "app/NoteSpelling.h"
#include "engine/SolveChannel.h"
#include "plain/PlainLoops.h"

namespace {

constexpr int Repeats = 1000;

void Begin(std::string_view type, double n, double S, double Q) {
  ChannelState = ChannelRecord{};
  ChannelState.ChannelType = type;
  ChannelState.ManningN = n;
  ChannelState.Slope = S;
  ChannelState.Flow = Q;
}

void Trapezoid() {
  Begin(ChannelTypes::Trapezoidal, 0.025, 0.0016, 400);
  ChannelState.BaseWidth = 20;
  ChannelState.SideSlopeLeft = 2;
  ChannelState.SideSlopeRight = 3;
}

// With a second depth.
void Pipe() {
  Begin(ChannelTypes::Circular, 0.013, 0.002, 200);
  ChannelState.Diameter = 6;
}

// A valley of 100 points with three n and a flat bench on either side: several levels.
void Valley() {
  Begin(ChannelTypes::Irregular, 0, 0.001, 3000);
  ChannelState.IrregPointCount = 100;
  for (int i = 0; i < 100; ++i) {
    const double fromMiddle = std::abs(i - 49.5);
    auto& point = ChannelState.IrregEnginePoints[static_cast<size_t>(i) + 1];
    point[1] = 4.0 * i;
    const bool bench = fromMiddle > 15 && fromMiddle < 40;
    point[2] = 100 + (bench ? 10 : fromMiddle * fromMiddle / 60 + std::sin(3.0 * i));
  }
  ChannelState.IrregEnginePoints[1][3] = 0.035;
  ChannelState.IrregEnginePoints[36][3] = 0.03;
  ChannelState.IrregEnginePoints[66][3] = 0.07;
}

double Nanoseconds(const std::function<void()>& act) {
  const std::clock_t start = std::clock();
  for (int i = 0; i < Repeats; ++i) act();
  return static_cast<double>(std::clock() - start) * (1e9 / CLOCKS_PER_SEC / Repeats);
}

double Median(std::vector<double> values) {
  std::ranges::nth_element(values, values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2));
  return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 51;
  std::printf("%-28s %10s %10s %6s\n", "problem", "solve ns", "notes ns", "ratio");
  struct Case {
    const char* Name;
    void (*SetUp)();
  };
  for (const Case& each :
       {Case{"trapezoid", Trapezoid}, Case{"pipe, two depths", Pipe}, Case{"100 points, benches", Valley}}) {
    each.SetUp();
    std::vector<double> solve, notes, ratio;
    std::size_t texts = 0;
    for (int round = 0; round < rounds; ++round) {
      solve.push_back(Nanoseconds(PlainLoops::SolveChannel));
      notes.push_back(Nanoseconds([&] { texts += NotesOn(Examine(ChannelState), NoteSpelling()).size(); }));
      ratio.push_back(notes.back() / solve.back());
    }
    std::printf("%-28s %10.0f %10.0f %6.2f   %zu notes\n", each.Name, Median(solve), Median(notes),
                Median(ratio), texts / static_cast<std::size_t>(rounds * Repeats));
  }
}

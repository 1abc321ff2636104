// What one keystroke costs beside the engine: parse and check the inputs, solve for the depth, format ten
// boxes, form the notes, and the working where its window is open.
#include <benchmark/benchmark.h>

#include "RatingProblems.h"
#include "engine/ChannelState.h"
#include "engine/SolveChannel.h"
#include "program/Program.h"
#include "support/FakeServices.h"

namespace {

class NoScreen : public WindowHost {
  void Open(Form&) override {}
  void Raise(Form&) override {}
  void Wait(Form&) override {}
};

/// The window with the trapezoid b 20 ft, z 2, n 0.025, S 0.0016 typed in.
struct Window {
  Window() : All(Fakes.With(Screen)), Main(All.Main) {
    All.Start();
    Main.mnuOptionsTrap_Click();
    Main.tbFlow.Text = "400";
    Main.tbSlope.Text = "0.0016";
    Main.tbMann.Text = "0.025";
    Main.tbBaseWidth.Text = "20";
    Main.tbSSL.Text = "2";
    Main.tbSSR.Text = "2";
  }
  FakeServices Fakes;
  NoScreen Screen;
  Program All;
  frmMain& Main;
};

void Keystroke(benchmark::State& state) {
  Window window;
  bool longer = false;
  for (auto _ : state) {
    longer = !longer;
    window.Main.tbFlow.Text = longer ? "4000" : "400";
  }
}
BENCHMARK(Keystroke);

/// Argument 1: with the window of the working open.
void KeystrokeOn100Points(benchmark::State& state) {
  Window window;
  RatingProblems::Valley();
  ChannelState.IrregPoints = ChannelState.IrregEnginePoints;  // in feet, both
  window.Main.mnuOptionsIrreg_Click();
  window.Main.tbSlope.Text = "0.001";
  if (state.range(0) == 1) window.Main.mnuSolveWorking.Click();
  bool longer = false;
  for (auto _ : state) {
    longer = !longer;
    window.Main.tbFlow.Text = longer ? "4000" : "400";
  }
}
BENCHMARK(KeystrokeOn100Points)->Arg(0)->Arg(1);

void TrapezoidOperation(benchmark::State& state) {
  const Window window;  // leaves the inputs in the record
  bool longer = false;
  for (auto _ : state) {
    longer = !longer;
    ChannelState.Flow = longer ? 4000 : 400;
    SolveChannel();
  }
}
BENCHMARK(TrapezoidOperation);

}  // namespace

BENCHMARK_MAIN();

// What one keystroke costs beside the engine: parse and check the inputs, solve for the depth, format ten boxes.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>

#include "app/Declarations.h"
#include "app/frmMain.h"
#include "engine/ChannelState.h"
#include "engine/SolveChannel.h"

namespace {

class NoWindows : public SubWindows {
  void OpenDigits() override {}
  void OpenMannParam() override {}
};

/// The window with the trapezoid b 20 ft, z 2, n 0.025, S 0.0016 typed in.
struct Window {
  Window() : Main(None) {
    Declarations::Reset();
    ChannelState.ChannelType = ChannelTypes::Trapezoidal;
    Main.Load();
    Main.Form_Activate();
    Main.tbFlow.Text = "400";
    Main.tbSlope.Text = "0.0016";
    Main.tbMann.Text = "0.025";
    Main.tbBaseWidth.Text = "20";
    Main.tbSSL.Text = "2";
    Main.tbSSR.Text = "2";
  }
  NoWindows None;
  frmMain Main;
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

void TrapezoidOperation(benchmark::State& state) {
  const Window window;
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

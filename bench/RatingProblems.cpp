// See RatingProblems.h.
#include "RatingProblems.h"

#include <cmath>
#include <string_view>

#include "app/Declarations.h"
#include "app/Units.h"
#include "engine/ChannelState.h"
#include "program/Program.h"
#include "support/FakeServices.h"

namespace {

class NoScreen : public WindowHost {
  void Open(Form&) override {}
  void Raise(Form&) override {}
  void Wait(Form&) override {}
};

void Begin(std::string_view type, double slope, double roughness) {
  ChannelState = ChannelRecord{};
  ChannelState.ChannelType = type;
  ChannelState.Slope = slope;
  ChannelState.ManningN = roughness;
}

}  // namespace

namespace RatingProblems {

const frmMain& EmptyWindow() {
  static FakeServices fakes;
  static NoScreen screen;
  static const Program program(fakes.With(screen));
  return program.Main;
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

void SetRange(int points, double lastFlow) {
  const double step = lastFlow / points;
  RatingRange = {Units::Flow, 2, step, lastFlow, step, false};
}

}  // namespace RatingProblems

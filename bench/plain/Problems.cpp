// See Problems.h.
#include "Problems.h"

#include <array>
#include <bit>
#include <cmath>
#include <limits>

#include "PlainLoops.h"
#include "engine/EngineFault.h"
#include "engine/ManningCircular.h"
#include "engine/ManningIrreg.h"
#include "engine/ManningTrap.h"
#include "engine/SolveChannel.h"

namespace {

constexpr std::array Extremes = {0.0,   -0.0,  -1.0,  1.0,   1e-320, 1e-306, 1e-300, 1e-160, 1e-30, 1e-20,
                                 9e-21, 1e-10, 1e-6,  1e-5,  1e3,    1001.0, 1e6,    1e9,    1e12,  1e20,
                                 2e20,  1e100, 1e150, 1e165, 1e300,  1e308,  -1e-9,  -1e20,  0.5,   2.0};

// What an operation may assign, and its fault.
struct Outcome {
  std::array<EngineValue, 11> cells;
  std::string fault;
};

std::array<EngineValue*, 11> Results() {
  ChannelRecord& s = ChannelState;
  return {&s.Flow,
          &s.Depth,
          &s.Area,
          &s.Velocity,
          &s.VelocityHead,
          &s.WettedPerimeter,
          &s.HydraulicRadius,
          &s.TopWidth,
          &s.Froude,
          &s.CriticalDepth,
          &s.CriticalSlope};
}

constexpr std::array<const char*, 11> ResultNames = {"Flow",
                                                     "Depth",
                                                     "Area",
                                                     "Velocity",
                                                     "VelocityHead",
                                                     "WettedPerimeter",
                                                     "HydraulicRadius",
                                                     "TopWidth",
                                                     "Froude",
                                                     "CriticalDepth",
                                                     "CriticalSlope"};

template <typename Operation>
Outcome Run(Operation operation) {
  const EngineValue flow = ChannelState.Flow;
  const EngineValue depth = ChannelState.Depth;
  const auto results = Results();
  for (size_t i = 2; i < results.size(); ++i) *results[i] = "not assigned";
  Outcome outcome;
  try {
    operation();
  } catch (const EngineFault& fault) {
    outcome.fault = fault.what();
  }
  for (size_t i = 0; i < results.size(); ++i) outcome.cells[i] = *results[i];
  ChannelState.Flow = flow;
  ChannelState.Depth = depth;
  return outcome;
}

bool SameBits(const EngineValue& a, const EngineValue& b) {
  if (!a.IsDouble() || !b.IsDouble()) return a == b;
  return std::bit_cast<std::uint64_t>(a.Number()) == std::bit_cast<std::uint64_t>(b.Number());
}

std::string Inputs() {
  const ChannelRecord& s = ChannelState;
  std::string text = s.ChannelType + (s.SolveForFlow ? " for flow:" : " for depth:");
  const auto add = [&](const char* name, const EngineValue& cell) {
    text += std::string(" ") + name + " " + cell.Text();
  };
  add("Q", s.Flow);
  add("y", s.Depth);
  add("n", s.ManningN);
  add("S", s.Slope);
  add("D", s.Diameter);
  add("b", s.BaseWidth);
  add("zL", s.SideSlopeLeft);
  add("zR", s.SideSlopeRight);
  if (s.ChannelType == ChannelTypes::Irregular) {
    text += " points " + std::to_string(s.IrregPointCount);
    for (int i = 1; i <= s.IrregPointCount && i < 102; ++i) {
      const auto& point = s.IrregEnginePoints[static_cast<size_t>(i)];
      text += " (" + point[1].Text() + ", " + point[2].Text() + ", " + point[3].Text() + ")";
    }
  }
  return text;
}

}  // namespace

std::string Difference() {
  const Outcome found = Run([] { SolveChannel(); });
  const Outcome wanted = Run(PlainLoops::SolveChannel);
  if (found.fault != wanted.fault)
    return Inputs() + ": fault '" + found.fault + "', plainly '" + wanted.fault + "'";
  for (size_t i = 0; i < found.cells.size(); ++i) {
    if (!SameBits(found.cells[i], wanted.cells[i])) {
      return Inputs() + ": " + ResultNames[i] + " " + found.cells[i].Text() + ", plainly " +
             wanted.cells[i].Text();
    }
  }
  return {};
}

// By chance between the two, each power of ten as often as the next.
double ProblemSource::Scaled(double low, double high) {
  return std::exp(Between(std::log(low), std::log(high)));
}

// Mostly an ordinary number between the two.
double ProblemSource::Any(double low, double high) {
  if (Chance(0.93)) return Scaled(low, high);
  if (Chance(0.5)) return Scaled(1e-24, 1e24);
  return Extremes[static_cast<size_t>(Between(0, static_cast<double>(Extremes.size())))];
}

void ProblemSource::Next() {
  ChannelState.SolveForFlow = Chance(0.4);
  ChannelState.ManningN = Any(0.008, 0.2);
  ChannelState.Slope = Any(1e-6, 0.2);
  ChannelState.Flow = Any(1e-3, 1e6);
  ChannelState.Depth = Any(1e-3, 60);
  if (kind_ == ProblemKind::Section) {
    NextSection();
  } else if (kind_ == ProblemKind::Pipe) {
    ChannelState.ChannelType = ChannelTypes::Circular;
    const double D = Any(0.05, 40);
    ChannelState.Diameter = D;
    const double share = Chance(0.1) ? 1 : Between(0, 1.01);
    if (Chance(0.95)) ChannelState.Depth = share * D;
    try {
      if (Chance(0.9))
        ChannelState.Flow = share * ManningCircular::CircMaxFlow(D, ChannelState.Slope.Number(),
                                                                 ChannelState.ManningN.Number());
    } catch (const EngineFault&) {  // keeps the flow by chance
    }
  } else {
    ChannelState.ChannelType = ChannelTypes::Trapezoidal;
    ChannelState.BaseWidth = Chance(0.15) ? 0 : Any(0.1, 300);
    ChannelState.SideSlopeLeft = Chance(0.2) ? 0 : Any(0.05, 20);
    ChannelState.SideSlopeRight = Chance(0.2) ? 0 : Any(0.05, 20);
  }
  if (Chance(0.15)) AimAtAMidpoint();
}

// Makes the flow, or one a bit away, the one whose normal or critical depth is a midpoint itself, so that the
// search meets its target where both sides are equal.
void ProblemSource::AimAtAMidpoint() {
  const bool normal = Chance(0.5);
  double lo = 0;
  double hi = 999;
  try {
    if (kind_ == ProblemKind::Pipe) hi = (normal ? 0.938 : 1) * ChannelState.Diameter.Number();
    if (kind_ == ProblemKind::Section) {
      lo = ManningIrreg::IrregLowPoint(ChannelState.IrregEnginePoints, ChannelState.IrregPointCount);
      hi = lo + 999;
    }
    const double halvings = Between(1, 30);
    double y = hi;
    for (int i = 0; i < halvings; ++i) {
      y = (lo + hi) / 2;
      (Chance(i < 6 ? 0.1 : 0.5) ? lo : hi) = y;
    }
    double Q = 0;
    if (normal) {
      const EngineValue depth = ChannelState.Depth;
      const bool forFlow = ChannelState.SolveForFlow;
      ChannelState.Depth = y;
      ChannelState.SolveForFlow = true;
      Run([&] {
        PlainLoops::SolveChannel();
        Q = ChannelState.Flow.Number();
      });
      ChannelState.SolveForFlow = forFlow;
      ChannelState.Depth = depth;
    } else {
      const auto [A, T] = [&]() -> std::pair<double, double> {
        const double b = ChannelState.BaseWidth.Number(), zL = ChannelState.SideSlopeLeft.Number(),
                     zR = ChannelState.SideSlopeRight.Number();
        if (kind_ == ProblemKind::Trapezoid)
          return {ManningTrap::TrapArea(y, b, zL, zR), ManningTrap::TrapTopWidth(y, b, zL, zR)};
        const double D = ChannelState.Diameter.Number();
        if (kind_ == ProblemKind::Pipe)
          return {ManningCircular::CircArea(y, D), ManningCircular::CircTopWidth(y, D)};
        return {ManningIrreg::IrregArea(ChannelState.IrregEnginePoints, ChannelState.IrregPointCount, y),
                ManningIrreg::IrregTopWidth(ChannelState.IrregEnginePoints, ChannelState.IrregPointCount, y)};
      }();
      Q = std::sqrt(32.17405) * (A * std::sqrt(A / T));
    }
    if (!std::isfinite(Q)) return;
    ChannelState.Flow =
        Chance(0.4) ? Q : std::nextafter(Q, Chance(0.5) ? 0 : std::numeric_limits<double>::max());
  } catch (const EngineFault&) {  // no midpoint there
  }
}

void ProblemSource::NextSection() {
  const bool fresh = ChannelState.ChannelType != ChannelTypes::Irregular || Chance(0.1);
  ChannelState.ChannelType = ChannelTypes::Irregular;
  if (fresh) {
    ChangeSection();
  } else if (ChannelState.IrregPointCount >= 1 && Chance(0.1)) {
    // One cell of the section: what was known of it no longer holds.
    auto& point =
        ChannelState.IrregEnginePoints[static_cast<size_t>(Between(1, ChannelState.IrregPointCount + 0.99))];
    const int column = static_cast<int>(Between(1, 3.99));
    EngineValue& cell = point[static_cast<size_t>(column)];
    if (column == 3) {
      cell = Chance(0.5) ? EngineValue() : EngineValue(Any(0.01, 0.2));
    } else {
      cell = Chance(0.9) ? std::nextafter(cell.Number(), Between(-1, 1) < 0 ? -1e9 : 1e9) : Any(1, 100);
    }
  }
  if (ChannelState.IrregPointCount >= 1 && Chance(0.9)) {
    const double low =
        ManningIrreg::IrregLowPoint(ChannelState.IrregEnginePoints, ChannelState.IrregPointCount);
    ChannelState.Depth = low + Any(1e-6, 60);
  }
}

// A section of its own kind: how steep, how even, with walls, benches and several waters, on which datum.
void ProblemSource::ChangeSection() {
  int count = Chance(0.02) ? static_cast<int>(Between(-1, 3))
                           : static_cast<int>(Between(2, Chance(0.5) ? 12 : 101.99));
  const double span = Scaled(0.1, 50), height = Chance(0.1) ? 0 : Scaled(0.01, 30);
  const double datum = Chance(0.3) ? 0 : Chance(0.9) ? Scaled(1, 1e4) : Any(1, 1e8);
  const double start = Chance(0.3) ? 0 : Chance(0.9) ? Scaled(1, 1e5) : Any(1, 1e9);
  const bool valley = Chance(0.5), rounded = Chance(0.3), disorder = Chance(0.03);
  const double walls = Chance(0.3) ? 0.2 : 0, benches = Chance(0.3) ? 0.3 : 0,
               changes = Chance(0.4) ? 0 : Between(0, 0.4);
  double x = start;
  double e = datum;
  PointTable& points = ChannelState.IrregEnginePoints;
  for (int i = 0; i < count; ++i) {
    auto& point = points[static_cast<size_t>(i) + 1];
    if (!Chance(walls)) x += Between(0, span) * (disorder && Chance(0.2) ? -1 : 1);
    if (!Chance(benches))
      e = datum + (valley ? 3 * height * std::pow(2.0 * i / count - 1, 2) : 0) + Between(0, height);
    if (rounded && std::abs(e) < 1e15) {
      x = std::round(x * 10) / 10;
      e = std::round(e * 2) / 2;
    }
    point[1] = x;
    point[2] = Chance(0.002) ? Any(1, 100) : e;
    point[3] = i == 0            ? EngineValue(Any(0.01, 0.2))
               : Chance(changes) ? EngineValue(Any(0.01, 0.2))
                                 : EngineValue();
  }
  if (Chance(0.02)) points[1][3] = "";
  ChannelState.IrregPointCount = count;
}

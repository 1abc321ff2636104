// Trapezoidal channels; notation as in engine/ManningTrap.cpp.
#include <cmath>

#include "PlainLoops.h"
#include "PlainSearch.h"
#include "engine/ChannelState.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/UniformFlow.h"

namespace PlainLoops {
namespace {

double TrapArea(double y, double b, double zL, double zR);
double TrapWettedPerimeter(double y, double b, double zL, double zR);
double TrapTopWidth(double y, double b, double zL, double zR);
double TrapFroude(double V, double T, double A);
EngineValue TrapCriticalDepth(double b, double zL, double zR, double Q);
double TrapCriticalSlope(double yc, double b, double zL, double zR, double n, double Q);

// The section with all that does not depend on the depth worked out once; unchecked, for the searches.
struct Trapezoid {
  Trapezoid(double baseWidth, double zL, double zR)
      : b(baseWidth),
        slopes(zL + zR),
        rightLength(std::sqrt(zR * zR + 1)),
        leftLength(std::sqrt(zL * zL + 1)) {}

  double Area(double y) const { return slopes * (0.5 * (y * y)) + b * y; }
  double WettedPerimeter(double y) const { return (b + y * rightLength) + y * leftLength; }
  double TopWidth(double y) const { return slopes * y + b; }

  double b, slopes, rightLength, leftLength;
};

// The inputs of the record but Depth and Flow; a number that is not finite faults.
struct Inputs {
  double b = Finite(ChannelState.BaseWidth.Number());
  double zL = Finite(ChannelState.SideSlopeLeft.Number());
  double zR = Finite(ChannelState.SideSlopeRight.Number());
  double n = Finite(ChannelState.ManningN.Number());
  double S = Finite(ChannelState.Slope.Number());
};

// Area, WettedPerimeter and HydraulicRadius of the record at the depth y.
void AssignSection(const Inputs& in, double y) {
  const double A = TrapArea(y, in.b, in.zL, in.zR);
  ChannelState.Area = A;
  const double P = TrapWettedPerimeter(y, in.b, in.zL, in.zR);
  ChannelState.WettedPerimeter = P;
  ChannelState.HydraulicRadius = UniformFlow::HydraulicRadius(A, P);
}

// The results that need the flow as well.
void AssignFlowResults(const Inputs& in, double y, double Q) {
  const double A = TrapArea(y, in.b, in.zL, in.zR);
  const double V = UniformFlow::AssignVelocity(Q, A);
  const double T = TrapTopWidth(y, in.b, in.zL, in.zR);
  ChannelState.TopWidth = T;
  ChannelState.Froude = TrapFroude(V, T, A);
  const EngineValue yc = TrapCriticalDepth(in.b, in.zL, in.zR, Q);
  ChannelState.CriticalDepth = yc;
  ChannelState.CriticalSlope = yc.IsDouble()
                                   ? EngineValue(TrapCriticalSlope(yc.Number(), in.b, in.zL, in.zR, in.n, Q))
                                   : EngineValue();
}

double TrapArea(double y, double b, double zL, double zR) {
  return Finite(Trapezoid(b, zL, zR).Area(y));
}

double TrapWettedPerimeter(double y, double b, double zL, double zR) {
  return Finite(Trapezoid(b, zL, zR).WettedPerimeter(y));
}

double TrapTopWidth(double y, double b, double zL, double zR) {
  return Finite(Trapezoid(b, zL, zR).TopWidth(y));
}

double TrapFroude(double V, double T, double A) {
  return UniformFlow::Froude(V, T, A);
}

EngineValue TrapCriticalDepth(double b, double zL, double zR, double Q) {
  const Trapezoid section(b, zL, zR);
  const double y = LastMidpoint(
      0, Constants::SearchDepth, UniformFlow::CriticalSectionFactor(Q),
      [&](double depth) { return UniformFlow::SectionFactor(section.Area(depth), section.TopWidth(depth)); });
  return y <= Constants::DeepestResult ? EngineValue(y) : EngineValue::False();
}

double TrapCriticalSlope(double yc, double b, double zL, double zR, double n, double Q) {
  return UniformFlow::CriticalSlope(TrapArea(yc, b, zL, zR), TrapWettedPerimeter(yc, b, zL, zR), n, Q);
}

}  // namespace

void PrismaticFlowFromDepth() {
  const Inputs in;
  const double y = Finite(ChannelState.Depth.Number());
  AssignSection(in, y);
  const Trapezoid section(in.b, in.zL, in.zR);
  const double Q = UniformFlow::Discharge(section.Area(y), section.WettedPerimeter(y), in.n,
                                          UniformFlow::RootOfSlope(in.S));
  ChannelState.Flow = Q;
  AssignFlowResults(in, y, Q);
}

void PrismaticDepthFromFlow() {
  const Inputs in;
  const double Q = Finite(ChannelState.Flow.Number());
  const double rootS = UniformFlow::RootOfSlope(in.S);
  const Trapezoid section(in.b, in.zL, in.zR);
  const double y = LastMidpoint(0, Constants::SearchDepth, Q, [&](double depth) {
    return UniformFlow::Discharge(section.Area(depth), section.WettedPerimeter(depth), in.n, rootS);
  });
  if (y > Constants::DeepestResult) {
    UniformFlow::AssignOverflow(ChannelState.Depth);
    return;
  }
  ChannelState.Depth = y;
  AssignSection(in, y);
  AssignFlowResults(in, y, Q);
}

}  // namespace PlainLoops

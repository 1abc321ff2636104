// Circular pipes; notation as in engine/ManningCircular.cpp.
#include <cmath>

#include "PlainLoops.h"
#include "PlainSearch.h"
#include "engine/ChannelState.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/UniformFlow.h"

namespace PlainLoops {
namespace {

double ArcCos(double x);
double CircArea(double y, double D);
double CircWettedPerimeter(double y, double D);
double CircTopWidth(double y, double D);
EngineValue CircFroude(double V, double T, double A);
double CircMaxFlow(double D, double S, double n);
EngineValue CircCriticalDepth(double D, double Q);
EngineValue CircCriticalSlope(const EngineValue& yc, double D, double n, double Q);

constexpr double Pi = Constants::Pi;

// The pipe with all that does not depend on the depth worked out once; unchecked but for the angle, for the
// searches.
struct Pipe {
  explicit Pipe(double diameter) : D(diameter), eighth((D * D) / 8) {}

  double Angle(double y) const { return 2 * ArcCos(1 - (2 * y) / D); }
  double Area(double theta) const { return (theta - std::sin(theta)) * eighth; }
  double WettedPerimeter(double theta) const { return (D * theta) / 2; }
  double FullArea() const { return Pi * ((D / 2) * (D / 2)); }
  double FullPerimeter() const { return Pi * D; }
  double TopWidth(double y) const { return y < D ? 2 * std::sqrt((D - y) * y) : 0; }

  // Manning's flow at the depth y; area and perimeter share one angle.
  double Discharge(double y, double n, double rootS) const {
    if (!(y < D)) return UniformFlow::Discharge(FullArea(), FullPerimeter(), n, rootS);
    const double theta = Angle(y);
    return UniformFlow::Discharge(Area(theta), WettedPerimeter(theta), n, rootS);
  }

  double SectionFactor(double y) const {
    return UniformFlow::SectionFactor(y < D ? Area(Angle(y)) : FullArea(), TopWidth(y));
  }

  double D, eighth;
};

// The inputs of the record but Depth and Flow; a number that is not finite faults.
struct Inputs {
  double D = Finite(ChannelState.Diameter.Number());
  double n = Finite(ChannelState.ManningN.Number());
  double S = Finite(ChannelState.Slope.Number());
};

// Area, WettedPerimeter and HydraulicRadius of the record at the depth y.
void AssignSection(const Inputs& in, double y) {
  const double A = CircArea(y, in.D);
  ChannelState.Area = A;
  const double P = CircWettedPerimeter(y, in.D);
  ChannelState.WettedPerimeter = P;
  ChannelState.HydraulicRadius = UniformFlow::HydraulicRadius(A, P);
}

// The results that need the flow as well.
void AssignFlowResults(const Inputs& in, double y, double Q) {
  const double A = CircArea(y, in.D);
  const double V = UniformFlow::AssignVelocity(Q, A);
  const double T = CircTopWidth(y, in.D);
  ChannelState.TopWidth = T;
  ChannelState.Froude = CircFroude(V, T, A);
  const EngineValue yc = CircCriticalDepth(in.D, Q);
  ChannelState.CriticalDepth = yc;
  ChannelState.CriticalSlope = CircCriticalSlope(yc, in.D, in.n, Q);
}

double ArcCos(double x) {
  // An infinite tangent has a finite arc: it must not pass.
  const double tangent = -x / std::sqrt(-x * x + 1);
  if (!AllFinite(tangent)) [[unlikely]]
    ThrowFault("the depth is too near the invert or the crown");
  return std::atan(tangent) + Pi / 2;
}

double CircArea(double y, double D) {
  const Pipe pipe(D);
  return Finite(y < D ? pipe.Area(pipe.Angle(y)) : pipe.FullArea());
}

double CircWettedPerimeter(double y, double D) {
  const Pipe pipe(D);
  return Finite(y < D ? pipe.WettedPerimeter(pipe.Angle(y)) : pipe.FullPerimeter());
}

double CircTopWidth(double y, double D) {
  return Finite(Pipe(D).TopWidth(y));
}

EngineValue CircFroude(double V, double T, double A) {
  return T == 0 ? EngineValue::False() : EngineValue(UniformFlow::Froude(V, T, A));
}

double CircMaxFlow(double D, double S, double n) {
  return Pipe(D).Discharge(Constants::PeakFlowDepth * D, n, UniformFlow::RootOfSlope(S));
}

EngineValue CircCriticalDepth(double D, double Q) {
  const Pipe pipe(D);
  const double y = LastMidpoint(0, D, UniformFlow::CriticalSectionFactor(Q),
                                [&](double depth) { return pipe.SectionFactor(depth); });
  return D - y < Constants::CrownTolerance ? EngineValue() : EngineValue(y);
}

EngineValue CircCriticalSlope(const EngineValue& yc, double D, double n, double Q) {
  if (!yc.IsDouble() || !(yc.Number() < D)) return {};
  return UniformFlow::CriticalSlope(CircArea(yc.Number(), D), CircWettedPerimeter(yc.Number(), D), n, Q);
}

}  // namespace

void CircularFlowFromDepth() {
  const Inputs in;
  const double y = Finite(ChannelState.Depth.Number());
  if (!(y <= in.D)) {
    UniformFlow::AssignOverflow(ChannelState.Flow);
    return;
  }
  AssignSection(in, y);
  const double Q = Pipe(in.D).Discharge(y, in.n, UniformFlow::RootOfSlope(in.S));
  ChannelState.Flow = Q;
  AssignFlowResults(in, y, Q);
}

void CircularDepthFromFlow() {
  const Inputs in;
  const double Q = Finite(ChannelState.Flow.Number());
  if (!(Q < CircMaxFlow(in.D, in.S, in.n))) {
    UniformFlow::AssignOverflow(ChannelState.Depth);
    return;
  }
  const Pipe pipe(in.D);
  const double rootS = UniformFlow::RootOfSlope(in.S);
  const double y = LastMidpoint(0, Constants::PeakFlowDepth * in.D, Q,
                                [&](double depth) { return pipe.Discharge(depth, in.n, rootS); });
  ChannelState.Depth = y;
  AssignSection(in, y);
  AssignFlowResults(in, y, Q);
}

}  // namespace PlainLoops

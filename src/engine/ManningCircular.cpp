// Circular pipes; notation: y depth, D diameter, theta angle at the centre under the water (rad), A flow
// area, P wetted perimeter, R hydraulic radius, T top width, Q flow, V velocity, n roughness, S slope; feet
// and seconds.
#include "engine/ManningCircular.h"

#include <algorithm>
#include <cmath>

#include "engine/Bisection.h"
#include "engine/ChannelState.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/Search.h"
#include "engine/UniformFlow.h"

namespace ManningCircular {
namespace {

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

  struct Water {
    double A, P;
  };

  // Area and perimeter at the depth y share one angle.
  Water Below(double y) const {
    if (!(y < D)) return {FullArea(), FullPerimeter()};
    const double theta = Angle(y);
    return {Area(theta), WettedPerimeter(theta)};
  }

  // Manning's flow at the depth y.
  double Discharge(double y, double n, double rootS) const {
    const auto [A, P] = Below(y);
    return UniformFlow::Discharge(A, P, n, rootS);
  }

  double SectionFactor(double y) const { return UniformFlow::SectionFactor(Below(y).A, TopWidth(y)); }

  // Up to the depth of a search, 0.938 D and D, flow and section factor then rise as the jump asks for. With
  // s = sin(theta/2), g = theta - sin(theta), u = 2^-53 and midpoints 4e-7 ft or more from invert and crown,
  // so that s > 4e-5: the cosine 1 - 2y/D is off by 2u, s^2 by 6u, theta by 6u/s + 14u, thus g by 45us + ug;
  // 1e-6 ft changes g by 8e-6 s/D and theta by 4e-6 / (Ds), each 1e6 times as much for D = 1000 ft. What is
  // left are errors of a relative 1e-14, against the rise of the true functions.
  // Flow: 3 d ln Q / dy = 8 / (Ds) (5 s^2 / g - 1 / theta), least at 0.938 D, just below the peak, where it
  // is 0.008 / D: Q rises by a relative 2.6e-12. Section factor: d ln Z / dy = 3/2 T/A - 1/2 T'/T exceeds 2.5
  // / D: by 2.5e-9.
  bool IsOrdinary() const { return D >= 1e-3 && D <= 1e3; }

  double D, eighth;
};

// A guess of the depth from one of its angle; sidesAt(theta, s, g) are the sides at the angle, with
// s = sin(theta/2) and g = theta - sin(theta).
template <typename SidesAt>
double GuessDepth(double D, double start, SidesAt sidesAt) {
  const double angle = Search::GuessRoot(
      start, [&](double theta) { return sidesAt(theta, std::sin(theta / 2), theta - std::sin(theta)); });
  return D * Search::Power<2>(std::sin(angle / 4));
}

// The depth (ft) of the flow Q, below the greatest flow; up to 0.938 D.
double NormalDepth(const Pipe& pipe, double n, double rootS, double Q, double greatest) {
  const double top = Constants::PeakFlowDepth * pipe.D;
  const auto below = [&](double y) { return pipe.Discharge(y, n, rootS) < Q; };
  if (!pipe.IsOrdinary() || !Search::Ordinary(n, rootS, Q)) return Bisect(0, top, below).y;
  // A^5 = C P^2 is g^5 = K theta^2. The start: the power law of a shallow angle, or the parabola of the flow
  // below its peak at 5.278.
  const double K = 8192 * Search::Power<3>(Q * n / (Constants::ManningK * rootS)) / Search::Power<8>(pipe.D);
  const double share = Q / greatest;
  const double start =
      share < 0.25 ? 3.1 * Search::RoughPower(share, 3 / 13.0) : 5.278 - 2.8 * std::sqrt(1 - share);
  const auto sides = [K](double theta, double s, double g) -> Search::Sides {
    return {Search::Power<5>(g), K * theta * theta, 10 * theta * s * s / g - 2};
  };
  return Search::Jump(0, top, GuessDepth(pipe.D, start, sides), below);
}

// The critical depth (ft) of the flow Q, up to the crown.
double CriticalDepth(const Pipe& pipe, double Q) {
  const double Z = UniformFlow::CriticalSectionFactor(Q);
  const auto below = [&](double y) { return pipe.SectionFactor(y) < Z; };
  if (!pipe.IsOrdinary() || !Search::Ordinary(Z)) return Bisect(0, pipe.D, below).y;
  // A^3 = Z^2 T is g^3 = K s. The start: the power law of a shallow angle, or the narrow water below the
  // crown.
  const double K = 512 * (Z * Z) / Search::Power<5>(pipe.D);
  const double start = K < 300 ? Search::RoughPower(108 * K, 1 / 8.0) : 2 * Pi - 496 / K;
  const auto sides = [K](double theta, double s, double g) -> Search::Sides {
    return {Search::Power<3>(g), K * s, theta * (6 * s * s / g - std::cos(theta / 2) / (2 * s))};
  };
  return Search::Jump(0, pipe.D, GuessDepth(pipe.D, start, sides), below);
}

EngineValue UnlessAtTheCrown(double yc, double D) {
  return D - yc < Constants::CrownTolerance ? EngineValue() : EngineValue(yc);
}

// The inputs of the record but Depth and Flow; a number that is not finite faults.
struct Inputs {
  double D = Finite(ChannelState.Diameter.Number());
  double n = Finite(ChannelState.ManningN.Number());
  double S = Finite(ChannelState.Slope.Number());
  Pipe pipe{D};
};

// Area, WettedPerimeter and HydraulicRadius of the record at the depth y.
Pipe::Water AssignSection(const Pipe& pipe, double y) {
  const Pipe::Water water = pipe.Below(y);
  ChannelState.Area = Finite(water.A);
  ChannelState.WettedPerimeter = Finite(water.P);
  ChannelState.HydraulicRadius = UniformFlow::HydraulicRadius(water.A, water.P);
  return water;
}

// The results that need the flow as well.
void AssignFlowResults(const Inputs& in, double y, double A, double Q) {
  const double V = UniformFlow::AssignVelocity(Q, A);
  const double T = CircTopWidth(y, in.D);
  ChannelState.TopWidth = T;
  ChannelState.Froude = CircFroude(V, T, A);
  const EngineValue yc = UnlessAtTheCrown(CriticalDepth(in.pipe, Q), in.D);
  ChannelState.CriticalDepth = yc;
  ChannelState.CriticalSlope = CircCriticalSlope(yc, in.D, in.n, Q);
}

}  // namespace

double ArcCos(double x) {
  // An infinite tangent has a finite arc: it must not pass.
  const double tangent = -x / std::sqrt(-x * x + 1);
  if (!AllFinite(tangent)) [[unlikely]]
    ThrowFault("the depth is too near the invert or the crown");
  return std::atan(tangent) + Pi / 2;
}

double CircArea(double y, double D) {
  return Finite(Pipe(D).Below(y).A);
}

double CircWettedPerimeter(double y, double D) {
  return Finite(Pipe(D).Below(y).P);
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
  return UnlessAtTheCrown(CriticalDepth(Pipe(D), Q), D);
}

EngineValue CircCriticalSlope(const EngineValue& yc, double D, double n, double Q) {
  if (!yc.IsDouble() || !(yc.Number() < D)) return {};
  const auto [A, P] = Pipe(D).Below(yc.Number());
  return UniformFlow::CriticalSlope(Finite(A), Finite(P), n, Q);
}

void CircularFlowFromDepth() {
  const Inputs in;
  const double y = Finite(ChannelState.Depth.Number());
  if (!(y <= in.D)) {
    UniformFlow::AssignOverflow(ChannelState.Flow);
    return;
  }
  const auto [A, P] = AssignSection(in.pipe, y);
  const double Q = UniformFlow::Discharge(A, P, in.n, UniformFlow::RootOfSlope(in.S));
  ChannelState.Flow = Q;
  AssignFlowResults(in, y, A, Q);
}

void CircularDepthFromFlow() {
  const Inputs in;
  const double Q = Finite(ChannelState.Flow.Number());
  const double greatest = CircMaxFlow(in.D, in.S, in.n);
  if (!(Q < greatest)) {
    UniformFlow::AssignOverflow(ChannelState.Depth);
    return;
  }
  const double y = NormalDepth(in.pipe, in.n, UniformFlow::RootOfSlope(in.S), Q, greatest);
  ChannelState.Depth = y;
  AssignFlowResults(in, y, AssignSection(in.pipe, y).A, Q);
}

}  // namespace ManningCircular

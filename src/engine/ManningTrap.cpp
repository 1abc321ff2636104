// Trapezoidal channels; notation: y depth, b base width, zL/zR side slopes (horizontal per vertical), A flow
// area, P wetted perimeter, R hydraulic radius, T top width, Q flow, V velocity, n roughness, S slope; feet
// and seconds.
#include "engine/ManningTrap.h"

#include <algorithm>

#include "engine/Bisection.h"
#include "engine/ChannelState.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/Search.h"
#include "engine/UniformFlow.h"

namespace ManningTrap {
namespace {

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

  // Flow and section factor then rise by a relative 1 / y a foot at least, as the jump asks for: 1e-9 over
  // 1e-6 ft, against errors of 1e-14. For d ln Q / d ln y = 5/3 yT/A - 2/3 yP'/P, d ln Z / d ln y =
  // 3/2 yT/A - 1/2 yT'/T, and A <= yT, yP' <= P, yT' <= T.
  bool IsOrdinary() const {
    return Search::ZeroOrOrdinary(b, slopes) && Search::Ordinary(b + slopes, rightLength + leftLength);
  }

  double b, slopes, rightLength, leftLength;
};

// The inputs of the record but Depth and Flow; a number that is not finite faults.
struct Inputs {
  double b = Finite(ChannelState.BaseWidth.Number());
  double zL = Finite(ChannelState.SideSlopeLeft.Number());
  double zR = Finite(ChannelState.SideSlopeRight.Number());
  double n = Finite(ChannelState.ManningN.Number());
  double S = Finite(ChannelState.Slope.Number());
  Trapezoid section{b, zL, zR};
};

// A guess of the depth at which A^p = C L^q, L = b + my: normal depth, A^5 = C P^2 with the lengths of both
// banks for m, and critical depth, A^3 = Z^2 T with their slopes.
template <int p, int q>
double GuessDepth(const Trapezoid& section, double C, double m) {
  using Search::Power;
  const double b = section.b;
  const double s = std::max(section.slopes, 1e-20);
  // The squared depths of a wide bed alone and of two banks alone, then a depth between them.
  const double bed = Search::RoughPower(C / Power<p - q>(b), 2.0 / p);
  const double banks = Search::RoughPower(C * Power<q>(m) * Power<p>(2 / s), 2.0 / (2 * p - q));
  return Search::GuessRoot(1 / std::sqrt(1 / bed + 1 / banks), [&](double y) -> Search::Sides {
    const double A = section.Area(y);
    const double L = b + m * y;
    return {Power<p>(A), C * Power<q>(L), y * (p * section.TopWidth(y) * L - q * m * A) / (A * L)};
  });
}

// The depth (ft) of the flow Q, up to 999 ft.
double NormalDepth(const Trapezoid& section, double n, double rootS, double Q) {
  const auto below = [&](double y) {
    return UniformFlow::Discharge(section.Area(y), section.WettedPerimeter(y), n, rootS) < Q;
  };
  if (!section.IsOrdinary() || !Search::Ordinary(n, rootS, Q))
    return Bisect(0, Constants::SearchDepth, below).y;
  const double C = Search::Power<3>(Q * n / (Constants::ManningK * rootS));
  return Search::JumpInOpenChannel(GuessDepth<5, 2>(section, C, section.rightLength + section.leftLength),
                                   below);
}

// The critical depth (ft) of the flow Q; false beyond 998 ft.
EngineValue CriticalDepth(const Trapezoid& section, double Q) {
  const double Z = UniformFlow::CriticalSectionFactor(Q);
  const auto below = [&](double y) {
    return UniformFlow::SectionFactor(section.Area(y), section.TopWidth(y)) < Z;
  };
  const double y = section.IsOrdinary() && Search::Ordinary(Z)
                       ? Search::JumpInOpenChannel(
                             GuessDepth<3, 1>(section, Z * Z, std::max(section.slopes, 1e-20)), below)
                       : Bisect(0, Constants::SearchDepth, below).y;
  return y <= Constants::DeepestResult ? EngineValue(y) : EngineValue::False();
}

double CriticalSlope(const Trapezoid& section, double yc, double n, double Q) {
  return UniformFlow::CriticalSlope(Finite(section.Area(yc)), Finite(section.WettedPerimeter(yc)), n, Q);
}

// Area, WettedPerimeter and HydraulicRadius of the record at the depth y; returns the area.
double AssignSection(const Trapezoid& section, double y) {
  const double A = Finite(section.Area(y));
  ChannelState.Area = A;
  const double P = Finite(section.WettedPerimeter(y));
  ChannelState.WettedPerimeter = P;
  ChannelState.HydraulicRadius = UniformFlow::HydraulicRadius(A, P);
  return A;
}

// The results that need the flow as well.
void AssignFlowResults(const Inputs& in, double y, double A, double Q) {
  const double V = UniformFlow::AssignVelocity(Q, A);
  const double T = Finite(in.section.TopWidth(y));
  ChannelState.TopWidth = T;
  ChannelState.Froude = TrapFroude(V, T, A);
  const EngineValue yc = CriticalDepth(in.section, Q);
  ChannelState.CriticalDepth = yc;
  ChannelState.CriticalSlope =
      yc.IsDouble() ? EngineValue(CriticalSlope(in.section, yc.Number(), in.n, Q)) : EngineValue();
}

}  // namespace

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
  return CriticalDepth(Trapezoid(b, zL, zR), Q);
}

double TrapCriticalSlope(double yc, double b, double zL, double zR, double n, double Q) {
  return CriticalSlope(Trapezoid(b, zL, zR), yc, n, Q);
}

void PrismaticFlowFromDepth() {
  const Inputs in;
  const double y = Finite(ChannelState.Depth.Number());
  const double A = AssignSection(in.section, y);
  const double P = in.section.WettedPerimeter(y);
  const double Q = UniformFlow::Discharge(A, P, in.n, UniformFlow::RootOfSlope(in.S));
  ChannelState.Flow = Q;
  AssignFlowResults(in, y, A, Q);
}

void PrismaticDepthFromFlow() {
  const Inputs in;
  const double Q = Finite(ChannelState.Flow.Number());
  const double y = NormalDepth(in.section, in.n, UniformFlow::RootOfSlope(in.S), Q);
  if (y > Constants::DeepestResult) {
    UniformFlow::AssignOverflow(ChannelState.Depth);
    return;
  }
  ChannelState.Depth = y;
  AssignFlowResults(in, y, AssignSection(in.section, y), Q);
}

}  // namespace ManningTrap

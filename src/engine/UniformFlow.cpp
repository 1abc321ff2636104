// Manning's equation and the results shared by the channel types; notation in UniformFlow.h.
#include "engine/UniformFlow.h"

#include "engine/ChannelState.h"

namespace UniformFlow {

double CheckedDischarge(double A, double P, double n, double rootS) {
  const double R = HydraulicRadius(Finite(A), Finite(P));
  const double radiusFactor = Power(R, Constants::TwoThirds, "the hydraulic radius is negative");
  return Finite(rootS * (radiusFactor * Divide(Finite(A * Constants::ManningK), n, "Manning's n is zero")));
}

double CheckedSectionFactor(double A, double T) {
  const double meanDepth = Divide(Finite(A), Finite(T), "the top width is zero");
  return Finite(A * SquareRoot(meanDepth, "the hydraulic depth is negative"));
}

double CriticalSectionFactor(double Q) {
  return Q / std::sqrt(Constants::Gravity);
}

double RootOfSlope(double S) {
  return SquareRoot(S, "the slope is negative");
}

double HydraulicRadius(double A, double P) {
  return Divide(A, P, "the wetted perimeter is zero");
}

double Froude(double V, double T, double A) {
  const double squaredWaveSpeed = Divide(Finite(A * Constants::Gravity), T, "the top width is zero");
  return Divide(V, SquareRoot(squaredWaveSpeed, "the hydraulic depth is negative"), "the flow area is zero");
}

double CriticalSlope(double A, double P, double n, double Q) {
  const double R = HydraulicRadius(A, P);
  const double radiusFactor = Power(R, Constants::TwoThirds, "the hydraulic radius is negative");
  const double conveyance = Divide(Finite(Constants::ManningK * A), n, "Manning's n is zero");
  return Power(Finite(radiusFactor * Divide(conveyance, Q, "the flow is zero")), -2,
               "the flow area at critical depth is zero");
}

double AssignVelocity(double Q, double A) {
  const double V = Divide(Q, A, "the flow area is zero");
  ChannelState.Velocity = V;
  ChannelState.VelocityHead = Finite(V * V) / Constants::TwoGravity;
  return V;
}

void AssignOverflow(EngineValue& solved) {
  solved = "Overflow";
  for (const auto result : ChannelRecord::Results) ChannelState.*result = "";
}

}  // namespace UniformFlow

// Surveyed sections; notation: x station, e elevation, W water-surface elevation, A flow area, P wetted
// perimeter, R hydraulic radius, T top width, Q flow, V velocity, n roughness, S slope; feet and seconds.
#include "engine/ManningIrreg.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "engine/Bisection.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/SurveyedSection.h"
#include "engine/UniformFlow.h"

namespace ManningIrreg {
namespace {

// The section of the record. It stays known as long as the points are the same: a rating curve reads it once.
SurveyedSection& CurrentSection() {
  static std::unique_ptr<SurveyedSection> section;
  const PointTable& points = ChannelState.IrregEnginePoints;
  if (!section || !section->IsOf(points, ChannelState.IrregPointCount)) {
    section.reset();  // a fault below leaves none
    section = std::make_unique<SurveyedSection>(points, ChannelState.IrregPointCount);
  }
  return *section;
}

// The inputs of the record but Depth and Flow; a number that is not finite faults.
struct Inputs {
  SurveyedSection& section = CurrentSection();
  double S = Finite(ChannelState.Slope.Number());
};

// The water-surface elevation (ft) of the flow Q, up to 999 ft above the lowest point.
double NormalLevel(SurveyedSection& section, double rootS, double Q) {
  const auto below = [&](double W) {
    if (const auto known = section.FlowIsBelow(W, rootS, Q)) return *known;
    const auto [flow, P] = section.roughness.Flow(section.ground, W, rootS);
    // All points lie at one place, or far from zero the midpoint rounds to the lowest point itself: no bed
    // under water, no hydraulic radius.
    if (P == 0) [[unlikely]]
      ThrowFault("the wetted perimeter is zero");
    return flow < Q;
  };
  return Bisect(section.ground.low, section.ground.low + Constants::SearchDepth, below).y;
}

// The critical water-surface elevation (ft) of the flow Q; blank beyond 998 ft above the lowest point.
EngineValue CriticalLevel(SurveyedSection& section, double Q) {
  const double low = section.ground.low;
  const double Z = UniformFlow::CriticalSectionFactor(Q);
  const auto below = [&](double W) {
    if (const auto known = section.FactorIsBelow(W, Z)) return *known;
    const Water water = section.ground.Below(W);
    return UniformFlow::SectionFactor(water.A, water.T) < Z;
  };
  const double W = Bisect(low, low + Constants::SearchDepth, below).y;
  return W <= low + Constants::DeepestResult ? EngineValue(W) : EngineValue();
}

// Area, WettedPerimeter and HydraulicRadius of the record.
void AssignSection(const Water& water) {
  ChannelState.Area = Finite(water.A);
  ChannelState.WettedPerimeter = Finite(water.P);
  ChannelState.HydraulicRadius = UniformFlow::HydraulicRadius(water.A, water.P);
}

// The results that need the flow as well.
void AssignFlowResults(SurveyedSection& section, const Water& water, double Q) {
  const double V = UniformFlow::AssignVelocity(Q, water.A);
  ChannelState.TopWidth = Finite(water.T);
  ChannelState.Froude = IrregFroude(V, water.T, water.A);
  ChannelState.CriticalDepth = CriticalLevel(section, Q);
  ChannelState.CriticalSlope = "";
}

}  // namespace

double IrregLowPoint(const PointTable& points, int count) {
  const size_t last = RowCount(count, 1);
  const auto first = points.begin() + 1;
  const auto lowest =
      std::min_element(first, first + static_cast<std::ptrdiff_t>(last),
                       [](const auto& a, const auto& b) { return a[2].Number() < b[2].Number(); });
  return Finite((*lowest)[2].Number());
}

double IrregArea(const PointTable& points, int count, double W) {
  return Finite(Ground(points, count).Below(W).A);
}

double IrregWettedPerimeter(const PointTable& points, int count, double W) {
  return Finite(Ground(points, count).Below(W).P);
}

double IrregTopWidth(const PointTable& points, int count, double W) {
  return Finite(Ground(points, count).Below(W).T);
}

double IrregFlow(const PointTable& points, int count, double W, double S) {
  const Ground ground(points, count);
  return Roughness(points, ground.last).Flow(ground, W, UniformFlow::RootOfSlope(S)).Q;
}

double IrregFroude(double V, double T, double A) {
  return UniformFlow::Froude(V, T, A);
}

EngineValue IrregCriticalElevation(const PointTable& points, int count, double Q) {
  SurveyedSection section(points, count);
  return CriticalLevel(section, Q);
}

void IrregFlowFromDepth() {
  const auto [section, S] = Inputs();
  const double W = Finite(ChannelState.Depth.Number());
  const Water water = section.ground.Below(W);
  AssignSection(water);
  const double Q = section.roughness.Flow(section.ground, W, UniformFlow::RootOfSlope(S)).Q;
  ChannelState.Flow = Q;
  AssignFlowResults(section, water, Q);
}

void IrregDepthFromFlow() {
  const auto [section, S] = Inputs();
  const double Q = Finite(ChannelState.Flow.Number());
  const double rootS = UniformFlow::RootOfSlope(S);
  const double W = NormalLevel(section, rootS, Q);
  if (W > section.ground.low + Constants::DeepestResult) {
    UniformFlow::AssignOverflow(ChannelState.Depth);
    return;
  }
  ChannelState.Depth = W;
  const Water water = section.ground.Below(W);
  AssignSection(water);
  AssignFlowResults(section, water, Q);
}

}  // namespace ManningIrreg

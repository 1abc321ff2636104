// See Findings.h. Notation: y depth, D diameter, W water-surface elevation, A flow area, P wetted perimeter,
// T top width, Q flow, S slope; feet and seconds.
#include "notes/Findings.h"

#include <algorithm>
#include <cmath>

#include "engine/Bisection.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/ManningCircular.h"
#include "engine/ManningTrap.h"
#include "engine/UniformFlow.h"

namespace {

constexpr double Step = Constants::SearchTolerance;
constexpr double MostDigits = 0.5e-5;  // relative: half a unit of the fifth digit at the least

bool Same(double y, double other) {
  return std::abs(y - other) <= 2 * Step;
}

Regime RegimeOf(const ChannelRecord& record) {
  if (!record.Froude.IsDouble()) return Regime::None;
  const double Fr = record.Froude.Number();
  // A film of water is as thin as the tolerance of the search: its depths agree whatever its regime.
  if (IsNearCritical(Fr) && record.CriticalDepth.IsDouble() &&
      Same(record.CriticalDepth.Number(), record.Depth.Number()))
    return Regime::Critical;
  return Fr < 1 ? Regime::Subcritical : Regime::Supercritical;
}

PipeFindings ExaminePipe(const ChannelRecord& record) {
  const double D = record.Diameter.Number();
  const double n = record.ManningN.Number();
  const double S = record.Slope.Number();
  const double y = record.Depth.Number();
  const double Q = record.Flow.Number();
  const double rootS = UniformFlow::RootOfSlope(S);
  const auto flowAt = [&](double depth) {
    return UniformFlow::Discharge(ManningCircular::CircArea(depth, D),
                                  ManningCircular::CircWettedPerimeter(depth, D), n, rootS);
  };
  PipeFindings found{D, flowAt(D), ManningCircular::CircMaxFlow(D, S, n), y >= D, {}};
  const double peak = Constants::PeakFlowDepth * D;
  if (Q < found.FullFlow || Q >= found.GreatestFlow) return found;
  if (y > peak) {
    found.OtherDepth = LastMidpoint(0, peak, Q, flowAt);
  } else if (Q == found.FullFlow) {
    found.OtherDepth = D;
  } else {
    found.OtherDepth = LastMidpoint(D, peak, Q, flowAt);
  }
  return found;
}

/// Puts the level in the box in the place of the nearest one found, or where rounding has hidden it.
std::size_t IndexOf(double W, std::vector<double>& levels) {
  const auto nearer = [W](double a, double b) { return std::abs(a - W) < std::abs(b - W); };
  auto place = std::ranges::min_element(levels, nearer);
  if (place == levels.end() || !Same(*place, W))
    place = levels.insert(std::ranges::lower_bound(levels, W), W);
  *place = W;
  return static_cast<std::size_t>(place - levels.begin());
}

std::vector<Pool> PoolsBesideChannel(const SectionGround& ground, const WaterInterval& water, double W,
                                     double rootS) {
  std::vector<Pool> pools;
  double total = 0;
  bool open = false;
  for (const Subsection& each : water.Subsections) {
    const double h = W - water.Bottom;
    const double area = each.Area(h);
    const double velocity = area > 0 ? SubsectionFlow(each, h, rootS) / area : 0;
    for (std::size_t i = each.From; i < each.To; ++i) {
      if (std::min(ground.Elevation(i), ground.Elevation(i + 1)) >= W) {
        open = false;
        continue;
      }
      if (!open || ground.Elevation(i) >= W) pools.push_back({ground.FirstWetStation(i, W), 0, 0});
      open = true;
      const double flow = velocity * ground.WetArea(i, W);
      pools.back().To = ground.LastWetStation(i, W);
      pools.back().Share += flow;
      total += flow;
    }
  }
  const auto channel =
      std::ranges::max_element(pools, [](const Pool& a, const Pool& b) { return a.Share < b.Share; });
  if (channel != pools.end()) pools.erase(channel);
  for (Pool& pool : pools) pool.Share /= total;
  return pools;
}

std::optional<double> FlowOfOneN(const WaterInterval& water, double W, double rootS) {
  std::vector<Subsection> joined;
  for (const Subsection& each : water.Subsections) {
    if (joined.empty() || joined.back().N != each.N) {
      joined.push_back(each);
      continue;
    }
    Subsection& before = joined.back();
    before.To = each.To;
    before.a0 += each.a0;
    before.a1 += each.a1;
    before.a2 += each.a2;
    before.p0 += each.p0;
    before.p1 += each.p1;
  }
  if (joined.size() == water.Subsections.size()) return {};
  double Q = 0;
  for (const Subsection& each : joined) Q += SubsectionFlow(each, W - water.Bottom, rootS);
  return Q;
}

SectionFindings ExamineSection(const ChannelRecord& record, const SectionGround& ground,
                               const WaterInterval& water) {
  const double W = record.Depth.Number();
  const double Q = record.Flow.Number();
  const double rootS = UniformFlow::RootOfSlope(record.Slope.Number());
  SectionFindings found{ground.FlowLevels(Q, rootS), ground.CriticalLevels(Q), 0, {}, 0, 0, {}, {}};
  found.Shown = IndexOf(W, found.Flow.Levels);
  if (record.CriticalDepth.IsDouble())
    found.CriticalShown = IndexOf(record.CriticalDepth.Number(), found.Critical.Levels);
  found.AboveFirst = W - ground.Elevation(1);
  found.AboveLast = W - ground.Elevation(ground.Last());
  found.Pools = PoolsBesideChannel(ground, water, W, rootS);
  found.FlowOfOneN = FlowOfOneN(water, W, rootS);
  return found;
}

struct Water {
  double A, P, T;
};

/// What depends on the depth alone: how much each result moves when the depth moves from one water to the
/// other.
void AddUncertainty(Findings& found, const ChannelRecord& record, const Water& at, const Water& above) {
  const double dA = above.A - at.A;
  const double V = found.Flow / at.A;
  const double Fr = record.Froude.Number();
  const Uncertainty results[] = {
      {&ChannelRecord::Area, at.A, dA},
      {&ChannelRecord::WettedPerimeter, at.P, above.P - at.P},
      {&ChannelRecord::HydraulicRadius, at.A / at.P, above.A / above.P - at.A / at.P},
      {&ChannelRecord::Velocity, V, V * dA / at.A},
      {&ChannelRecord::VelocityHead, V * V / Constants::TwoGravity,
       2 * (dA / at.A) * V * V / Constants::TwoGravity},
      {&ChannelRecord::TopWidth, at.T, above.T - at.T},
      {&ChannelRecord::Froude, Fr, Fr * (3 * dA / at.A - (above.T - at.T) / at.T) / 2},
  };
  for (const Uncertainty& each : results) {
    if (std::abs(each.Change) > MostDigits * std::abs(each.Value)) found.Uncertain.push_back(each);
  }
}

void AddCriticalSlope(Findings& found, double Sc, double ScAbove) {
  if (std::abs(ScAbove - Sc) > MostDigits * Sc)
    found.Uncertain.push_back({&ChannelRecord::CriticalSlope, Sc, ScAbove - Sc});
}

void ExaminePrism(Findings& found, const ChannelRecord& record) {
  const double b = record.BaseWidth.Number();
  const double zL = record.SideSlopeLeft.Number();
  const double zR = record.SideSlopeRight.Number();
  const auto at = [&](double y) {
    return Water{ManningTrap::TrapArea(y, b, zL, zR), ManningTrap::TrapWettedPerimeter(y, b, zL, zR),
                 ManningTrap::TrapTopWidth(y, b, zL, zR)};
  };
  if (!found.SolveForFlow) AddUncertainty(found, record, at(found.Depth), at(found.Depth + Step));
  if (!record.CriticalSlope.IsDouble()) return;
  AddCriticalSlope(found, record.CriticalSlope.Number(),
                   ManningTrap::TrapCriticalSlope(record.CriticalDepth.Number() + Step, b, zL, zR, found.N[0],
                                                  found.Flow));
}

void ExamineCircle(Findings& found, const ChannelRecord& record) {
  const double D = record.Diameter.Number();
  const auto at = [&](double y) {
    return Water{ManningCircular::CircArea(y, D), ManningCircular::CircWettedPerimeter(y, D),
                 ManningCircular::CircTopWidth(y, D)};
  };
  found.Pipe = ExaminePipe(record);
  if (!found.SolveForFlow) AddUncertainty(found, record, at(found.Depth), at(found.Depth + Step));
  if (!record.CriticalSlope.IsDouble()) return;
  AddCriticalSlope(
      found, record.CriticalSlope.Number(),
      ManningCircular::CircCriticalSlope(record.CriticalDepth.Number() - Step, D, found.N[0], found.Flow)
          .Number());
}

void ExamineIrregular(Findings& found, const ChannelRecord& record) {
  const SectionGround ground(record.IrregEnginePoints, record.IrregPointCount);
  found.N.clear();
  for (const Subsection& each : ground.Subsections()) found.N.push_back(each.N);
  const WaterInterval water = ground.IntervalOf(found.Depth);
  found.Section = ExamineSection(record, ground, water);
  if (found.SolveForFlow) return;
  const auto at = [&](double h) {
    Water sum{};
    for (const Subsection& each : water.Subsections) {
      sum.A += each.Area(h);
      sum.P += each.Perimeter(h);
      sum.T += each.Width(h);
    }
    return sum;
  };
  const double h = found.Depth - water.Bottom;
  AddUncertainty(found, record, at(h), at(h + Step));
}

}  // namespace

Findings Examine(const ChannelRecord& record) {
  Findings found;
  if (!record.Area.IsDouble() || !record.Flow.IsDouble() || !record.Depth.IsDouble()) return found;
  found.Solved = true;
  found.SolveForFlow = record.SolveForFlow;
  found.Flow = record.Flow.Number();
  found.Depth = record.Depth.Number();
  found.Slope = record.Slope.Number();
  found.Froude = record.Froude.Number();
  found.State = RegimeOf(record);
  found.N = {record.ManningN.Number()};
  try {
    if (record.ChannelType == ChannelTypes::Circular) {
      ExamineCircle(found, record);
    } else if (record.ChannelType == ChannelTypes::Irregular) {
      ExamineIrregular(found, record);
    } else {
      ExaminePrism(found, record);
    }
  } catch (const EngineFault&) {
    // A step beside the solution is out of range: what was found so far stands.
    return found;
  }
  return found;
}

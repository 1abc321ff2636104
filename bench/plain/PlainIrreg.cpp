// Surveyed sections; notation as in engine/ManningIrreg.cpp.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "PlainLoops.h"
#include "PlainSearch.h"
#include "engine/ChannelState.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/UniformFlow.h"

namespace PlainLoops {
namespace {

constexpr size_t Rows = std::tuple_size_v<PointTable>;

size_t RowCount(int count, int fewest) {
  if (count < fewest) ThrowFault("the section has too few points");
  if (count >= static_cast<int>(Rows)) ThrowFault("the section has too many points");
  return static_cast<size_t>(count);
}

// Water below one elevation.
struct Water {
  double A = 0;
  double P = 0;
  double T = 0;
};

// The ground line as plain numbers, indexed as the rows; segment i joins the rows i and i + 1. What does not
// depend on the water is worked out once.
struct Ground {
  Ground(const PointTable& points, int count) : last(RowCount(count, 2)) {
    for (size_t i = 1; i <= last; ++i) {
      x[i] = points[i][1].Number();
      e[i] = points[i][2].Number();
    }
    for (size_t i = 1; i < last; ++i) {
      // A station or elevation that is not finite has no finite distance to the next one either.
      dx[i] = Finite(x[i + 1] - x[i]);
      const double rise = Finite(e[i + 1] - e[i]);
      length[i] = std::sqrt(dx[i] * dx[i] + rise * rise);
    }
  }

  // Calls add(area, width, perimeter) for the part of each segment from..to-1 that lies below W; perimeter
  // is a function, because not every caller needs its root.
  template <typename Add>
  void ForEachWetSegment(size_t from, size_t to, double W, Add add) const {
    for (size_t i = from; i < to; ++i) {
      if (e[i] < W && e[i + 1] < W) {
        add(dx[i] * ((W - e[i]) + (W - e[i + 1])) / 2, dx[i], [&] { return length[i]; });
      } else if (e[i + 1] < W) {
        AddClipped(x[i + 1] - Shore(i, W), W - e[i + 1], add);
      } else if (e[i] < W) {
        AddClipped(Shore(i, W) - x[i], W - e[i], add);
      }
    }
  }

  // Station at which the water surface meets the segment i.
  double Shore(size_t i, double W) const { return x[i] + dx[i] * (e[i] - W) / (e[i] - e[i + 1]); }

  template <typename Add>
  static void AddClipped(double width, double depth, Add& add) {
    add(width * depth / 2, width, [&] { return std::sqrt(width * width + depth * depth); });
  }

  // All of the water, each quantity checked by its user: a fault belongs to the result it spoils.
  Water Below(double W) const {
    Water water;
    ForEachWetSegment(1, last, W, [&](double area, double width, auto perimeter) {
      water.A += area;
      water.P += perimeter();
      water.T += width;
    });
    return water;
  }

  double SectionFactor(double W) const {
    double A = 0;
    double T = 0;
    ForEachWetSegment(1, last, W, [&](double area, double width, auto) {
      A += area;
      T += width;
    });
    return UniformFlow::SectionFactor(A, T);
  }

  double LowPoint() const { return *std::min_element(e.begin() + 1, e.begin() + last + 1); }

  size_t last;  // row of the last point
  std::array<double, Rows> x, e, dx, length;
};

// The subsections of one n each.
struct Roughness {
  struct Subsection {
    size_t from, to;  // its first row and the first row of the next
    double kOverN;
  };

  Roughness(const PointTable& points, size_t last) {
    for (size_t i = 1; i < last; ++i) {
      const EngineValue& cell = points[i][3];
      if (!cell.IsEmptyText()) {
        subsections[count++] = {i, i + 1, Constants::ManningK / Finite(cell.Number())};
      } else if (count > 0) {
        subsections[count - 1].to = i + 1;
      }
    }
  }

  struct WetFlow {
    double Q = 0;
    double P = 0;
  };

  // Manning's flow of the subsections at W and their wetted perimeter, added up; a dry one adds none.
  WetFlow Flow(const Ground& ground, double W, double rootS) const {
    if (count == 0 || subsections[0].from != 1) ThrowFault("the first point has no Manning's n");
    double wetArea = 0;
    double wetPerimeter = 0;
    double Q = 0;
    for (size_t s = 0; s < count; ++s) {
      double A = 0;
      double P = 0;
      ground.ForEachWetSegment(subsections[s].from, subsections[s].to, W,
                               [&](double area, double, auto perimeter) {
                                 A += area;
                                 P += perimeter();
                               });
      wetArea += A;
      wetPerimeter += P;
      if (P != 0) Q += rootS * (subsections[s].kOverN * A * std::pow(A / P, Constants::TwoThirds));
    }
    if (!AllFinite(wetArea, wetPerimeter, Q)) [[unlikely]] {
      ThrowFault("a number is too large or a Manning's n is zero");
    }
    return {Q, wetPerimeter};
  }

  size_t count = 0;
  std::array<Subsection, Rows> subsections;
};

// The inputs of the record but Depth and Flow; a number that is not finite faults.
struct Inputs {
  Ground ground{ChannelState.IrregEnginePoints, ChannelState.IrregPointCount};
  Roughness roughness{ChannelState.IrregEnginePoints, ground.last};
  double S = Finite(ChannelState.Slope.Number());
};

EngineValue CriticalElevation(const Ground& ground, double Q) {
  const double low = ground.LowPoint();
  const double W = LastMidpoint(low, low + Constants::SearchDepth, UniformFlow::CriticalSectionFactor(Q),
                                [&](double elevation) { return ground.SectionFactor(elevation); });
  return W <= low + Constants::DeepestResult ? EngineValue(W) : EngineValue();
}

// Area, WettedPerimeter and HydraulicRadius of the record.
void AssignSection(const Water& water) {
  ChannelState.Area = Finite(water.A);
  ChannelState.WettedPerimeter = Finite(water.P);
  ChannelState.HydraulicRadius = UniformFlow::HydraulicRadius(water.A, water.P);
}

// The results that need the flow as well.
void AssignFlowResults(const Ground& ground, const Water& water, double Q) {
  const double V = UniformFlow::AssignVelocity(Q, water.A);
  ChannelState.TopWidth = Finite(water.T);
  ChannelState.Froude = UniformFlow::Froude(V, water.T, water.A);
  ChannelState.CriticalDepth = CriticalElevation(ground, Q);
  ChannelState.CriticalSlope = "";
}

}  // namespace

void IrregFlowFromDepth() {
  const Inputs in;
  const double W = Finite(ChannelState.Depth.Number());
  const Water water = in.ground.Below(W);
  AssignSection(water);
  const double Q = in.roughness.Flow(in.ground, W, UniformFlow::RootOfSlope(in.S)).Q;
  ChannelState.Flow = Q;
  AssignFlowResults(in.ground, water, Q);
}

void IrregDepthFromFlow() {
  const Inputs in;
  const double Q = Finite(ChannelState.Flow.Number());
  const double rootS = UniformFlow::RootOfSlope(in.S);
  const double low = in.ground.LowPoint();
  const double W = LastMidpoint(low, low + Constants::SearchDepth, Q, [&](double elevation) {
    const auto [flow, P] = in.roughness.Flow(in.ground, elevation, rootS);
    // All points lie at one place, or far from zero the midpoint rounds to the lowest point itself: no bed
    // under water, no hydraulic radius.
    if (P == 0) [[unlikely]]
      ThrowFault("the wetted perimeter is zero");
    return flow;
  });
  if (W > low + Constants::DeepestResult) {
    UniformFlow::AssignOverflow(ChannelState.Depth);
    return;
  }
  ChannelState.Depth = W;
  const Water water = in.ground.Below(W);
  AssignSection(water);
  AssignFlowResults(in.ground, water, Q);
}

}  // namespace PlainLoops

// The ground line of a surveyed section and its roughness as plain numbers; notation as in ManningIrreg.h.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "engine/ChannelState.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/UniformFlow.h"

namespace ManningIrreg {

inline constexpr size_t Rows = std::tuple_size_v<PointTable>;

// The number of points as an index; faults below the fewest and above the room of the table.
inline size_t RowCount(int count, int fewest) {
  if (count < fewest) ThrowFault("the section has too few points");
  if (count >= static_cast<int>(Rows)) ThrowFault("the section has too many points");
  return static_cast<size_t>(count);
}

// Water below one elevation.
struct Water {
  double A = 0;
  double P = 0;
  double T = 0;

  void AddClipped(double width, double depth) {
    A += width * depth / 2;
    P += std::sqrt(width * width + depth * depth);
    T += width;
  }
};

// The ground line as plain numbers, indexed as the rows; segment i joins the rows i and i + 1. What does not
// depend on the water is worked out once.
struct Ground {
  Ground(const PointTable& points, int count) : last(RowCount(count, 2)) {
    for (size_t i = 1; i <= last; ++i) {
      x[i] = points[i][1].Number();
      e[i] = points[i][2].Number();
    }
    low = high = e[1];
    for (size_t i = 1; i < last; ++i) {
      // A station or elevation that is not finite has no finite distance to the next one either.
      dx[i] = Finite(x[i + 1] - x[i]);
      const double rise = Finite(e[i + 1] - e[i]);
      length[i] = std::sqrt(dx[i] * dx[i] + rise * rise);
      low = std::min(low, e[i + 1]);
      high = std::max(high, e[i + 1]);
    }
  }

  // All of the water, each quantity checked by its user: a fault belongs to the result it spoils.
  Water Below(double W) const { return Below(1, last, W); }

  // The water above the segments from..to-1.
  Water Below(size_t from, size_t to, double W) const {
    Water water;
    for (size_t i = from; i < to; ++i) {
      if (e[i] < W && e[i + 1] < W) {
        water.A += dx[i] * ((W - e[i]) + (W - e[i + 1])) / 2;
        water.P += length[i];
        water.T += dx[i];
      } else if (e[i + 1] < W) {
        water.AddClipped(x[i + 1] - Shore(i, W), W - e[i + 1]);
      } else if (e[i] < W) {
        water.AddClipped(Shore(i, W) - x[i], W - e[i]);
      }
    }
    return water;
  }

  // Station at which the water surface meets the segment i.
  double Shore(size_t i, double W) const { return x[i] + dx[i] * (e[i] - W) / (e[i] - e[i + 1]); }

  size_t last;               // row of the last point
  double low = 0, high = 0;  // elevations of the lowest and the highest point
  std::array<double, Rows> x, e, dx, length;
};

// The subsections of one n each.
struct Roughness {
  struct Subsection {
    size_t from, to;  // its first row and the first row of the next
    double n, kOverN;
  };

  Roughness(const PointTable& points, size_t last) {
    for (size_t i = 1; i < last; ++i) {
      const EngineValue& cell = points[i][3];
      if (!cell.IsEmptyText()) {
        const double n = Finite(cell.Number());
        subsections[count++] = {i, i + 1, n, Constants::ManningK / n};
      } else if (count > 0) {
        subsections[count - 1].to = i + 1;
      }
    }
  }

  // Does the first point have an n? A fault without it spoils the flow and not the geometry: it waits for
  // Flow.
  bool IsWhole() const { return count > 0 && subsections[0].from == 1; }

  struct WetFlow {
    double Q = 0;
    double P = 0;
  };

  // Manning's flow of the subsections at W and their wetted perimeter, added up; a dry one adds none.
  WetFlow Flow(const Ground& ground, double W, double rootS) const {
    if (!IsWhole()) ThrowFault("the first point has no Manning's n");
    double wetArea = 0;
    double wetPerimeter = 0;
    double Q = 0;
    for (size_t s = 0; s < count; ++s) {
      const auto [A, P, T] = ground.Below(subsections[s].from, subsections[s].to, W);
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

}  // namespace ManningIrreg

// A surveyed section as plain numbers, and its water as polynomials of its level for the searches; notation
// as in ManningIrreg.h.
//
// Between two neighbouring elevations of the ground, W in (from, to], the same segments are under water, in
// whole or in part. With t = W - from each subsection then has the area a0 + a1 t + a2 t^2, the width
// a1 + 2 a2 t and the perimeter p0 + p1 t: sums of terms that are not negative, so that nothing is lost to
// cancellation. They differ from what the segments give, one by one, by rounding alone. With u = 2^-53, at
// most 100 segments, X the largest distance of a station from 0 and h = W - lowest point:
// - sums are off by 100u, terms by 10u, on either way: a relative 3e-14 in all;
// - a shore, x + dx (e - W) / (e - e'), is rounded by 11uX, the width beside it by 16uX, all widths by
//   1600uX < 2e-13 X. So much are T and P off, and A h times as much.
// As A <= Th and T <= P, each of the three is off by a relative 2e-13 (1 + Xh/A) at most, the flow by 5/3 of
// A's and 2/3 of P's, A^3 / T by four times as much: 8e-13 (1 + Xh/A), with the A of the thinnest subsection.
// DecidedBy = 2e-12 covers that, the roundings of the comparison, and what is of second order, for Xh/A < 1e9
// is asked for. That leaves no water so thin that its area or width might round to 0 or below, which would
// fault.
//
// Nothing is taken for rising: where a bench makes the perimeter jump, the flow falls.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <span>
#include <vector>

#include "engine/ChannelState.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/Search.h"

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
    low = e[1];
    for (size_t i = 1; i < last; ++i) {
      // A station or elevation that is not finite has no finite distance to the next one either.
      dx[i] = Finite(x[i + 1] - x[i]);
      const double rise = Finite(e[i + 1] - e[i]);
      length[i] = std::sqrt(dx[i] * dx[i] + rise * rise);
      low = std::min(low, e[i + 1]);
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

  size_t last;     // row of the last point
  double low = 0;  // elevation of the lowest
  std::array<double, Rows> x, e, dx, length;
};

// The subsections of one n each.
struct Roughness {
  struct Subsection {
    size_t from, to;  // its first row and the first row of the next
    double kOverN;
    bool operator==(const Subsection&) const = default;
  };

  Roughness(const PointTable& points, size_t last) {
    for (size_t i = 1; i < last; ++i) {
      const EngineValue& n = points[i][3];
      if (!n.IsEmptyText())
        subsections.push_back({i, i + 1, Constants::ManningK / Finite(n.Number())});
      else if (!subsections.empty())
        subsections.back().to = i + 1;
    }
  }

  // Does the first point have an n? A fault without it spoils the flow and not the geometry: it waits for
  // Flow.
  bool IsWhole() const { return !subsections.empty() && subsections[0].from == 1; }

  struct WetFlow {
    double Q, P;
  };

  // Manning's flow of the subsections at W and their wetted perimeter, added up; a dry one adds none.
  WetFlow Flow(const Ground& ground, double W, double rootS) const {
    if (!IsWhole()) ThrowFault("the first point has no Manning's n");
    double wetArea = 0;
    double wetPerimeter = 0;
    double Q = 0;
    for (const auto& [from, to, kOverN] : subsections) {
      const auto [A, P, T] = ground.Below(from, to, W);
      wetArea += A;
      wetPerimeter += P;
      if (P != 0) Q += rootS * (kOverN * A * std::pow(A / P, Constants::TwoThirds));
    }
    if (!AllFinite(wetArea, wetPerimeter, Q)) [[unlikely]] {
      ThrowFault("a number is too large or a Manning's n is zero");
    }
    return {Q, wetPerimeter};
  }

  bool operator==(const Roughness&) const = default;

  std::vector<Subsection> subsections;
};

// A surveyed section and what its searches have found out about it.
class SurveyedSection {
 public:
  SurveyedSection(const PointTable& points, int count)
      : ground(points, count), roughness(points, ground.last), ordinary_(IsOrdinary()) {}

  // Do these points equal those that the section was read from?
  bool IsOf(const PointTable& points, int count) const {
    if (count != static_cast<int>(ground.last)) return false;
    for (size_t i = 1; i <= ground.last; ++i)
      if (points[i][1].Number() != ground.x[i] || points[i][2].Number() != ground.e[i]) return false;
    return Roughness(points, ground.last) == roughness;
  }

  // Is the flow (ft^3/s) at the water surface W (ft) below Q? Is the section factor below Z (ft^2.5)? Nothing
  // where only the segments themselves can decide.
  std::optional<bool> FlowIsBelow(double W, double rootS, double Q) {
    if (!Search::Ordinary(rootS, Q)) return std::nullopt;
    double conveyance = 0;
    double thinnest = std::numeric_limits<double>::infinity();
    for (const Strip& strip : StripsAt(W)) {
      const Water water = strip.At(W);
      conveyance += strip.kOverN * water.A * Search::Power<2>(std::cbrt(water.A / water.P));
      thinnest = std::min(thinnest, water.A);
    }
    return IsBelow(rootS * conveyance, Q, Roundings(W, thinnest));
  }

  std::optional<bool> FactorIsBelow(double W, double Z) {
    if (!Search::Ordinary(Z)) return std::nullopt;
    double A = 0;
    double T = 0;
    for (const Strip& strip : StripsAt(W)) {
      const Water water = strip.At(W);
      A += water.A;
      T += water.T;
    }
    return IsBelow(A * A * A, Z * Z * T, Roundings(W, A));
  }

  const Ground ground;
  const Roughness roughness;

 private:
  // The water of a subsection at the levels of a piece.
  struct Strip {
    Water At(double W) const {
      const double t = W - from;
      return {a0 + t * (a1 + t * a2), p0 + t * p1, a1 + 2 * a2 * t};
    }
    double kOverN, from;
    double a0 = 0, a1 = 0, a2 = 0, p0 = 0, p1 = 0;
  };
  struct Piece {
    bool Has(double W) const { return from < W && W <= to; }
    double from, to;
    size_t first, end;  // of strips_, without dry subsections and mere walls
  };

  static std::optional<bool> IsBelow(double left, double right, double roundings) {
    constexpr double DecidedBy = 2e-12;
    if (!(left > 0 && roundings < 1e9)) return std::nullopt;
    if (left < right * (1 - DecidedBy * roundings)) return true;
    if (left > right * (1 + DecidedBy * roundings)) return false;
    return std::nullopt;
  }

  double Reach() const { return std::max(std::abs(ground.x[1]), std::abs(ground.x[ground.last])); }
  double Roundings(double W, double A) const { return 1 + Reach() * (W - ground.low) / A; }

  bool IsOrdinary() const {
    bool ordinary = std::max(std::abs(ground.low), Reach()) <= 1e9 && roughness.IsWhole();
    for (size_t i = 1; i < ground.last; ++i)
      ordinary &= Search::ZeroOrOrdinary(ground.dx[i], std::abs(ground.e[i + 1] - ground.e[i]));
    for (const auto& subsection : roughness.subsections) ordinary &= Search::Ordinary(subsection.kOverN);
    return ordinary;
  }

  // The strips at the level W; none where nothing is known of it.
  std::span<const Strip> StripsAt(double W) {
    if (!ordinary_ || !(W > ground.low)) return {};
    if (last_ == pieces_.size() || !pieces_[last_].Has(W)) {
      const auto place = std::ranges::lower_bound(pieces_, W, {}, &Piece::to);
      last_ = static_cast<size_t>(place - pieces_.begin());
      if (place == pieces_.end() || !place->Has(W)) pieces_.insert(place, Build(W));
    }
    const Piece& piece = pieces_[last_];
    return {strips_.data() + piece.first, strips_.data() + piece.end};
  }

  Piece Build(double W) {
    Piece piece{ground.low, std::numeric_limits<double>::infinity(), strips_.size(), strips_.size()};
    for (size_t i = 1; i <= ground.last; ++i) {
      const double e = ground.e[i];
      if (e < W && e > piece.from) piece.from = e;
      if (e >= W && e < piece.to) piece.to = e;
    }
    for (const auto& [first, end, kOverN] : roughness.subsections) {
      Strip strip{kOverN, piece.from};
      for (size_t i = first; i < end; ++i) Add(strip, i);
      if (strip.a0 + strip.a1 + strip.a2 > 0) strips_.push_back(strip);
    }
    piece.end = strips_.size();
    return piece;
  }

  // Adds the segment i, whole or clipped.
  void Add(Strip& strip, size_t i) const {
    const auto [low, high] = std::minmax(ground.e[i], ground.e[i + 1]);
    const double depth = strip.from - low;
    if (depth < 0) return;
    if (high <= strip.from) {
      strip.a0 += ground.dx[i] * (depth + (strip.from - high)) / 2;
      strip.a1 += ground.dx[i];
      strip.p0 += ground.length[i];
    } else {
      const double widthPerFoot = ground.dx[i] / (high - low);
      const double lengthPerFoot = ground.length[i] / (high - low);
      strip.a0 += widthPerFoot * depth * depth / 2;
      strip.a1 += widthPerFoot * depth;
      strip.a2 += widthPerFoot / 2;
      strip.p0 += lengthPerFoot * depth;
      strip.p1 += lengthPerFoot;
    }
  }

  bool ordinary_;
  std::vector<Piece> pieces_;  // in the order of their levels, as far as they were asked for
  std::vector<Strip> strips_;
  size_t last_ = 0;  // the piece asked for last
};

}  // namespace ManningIrreg

// A surveyed section with its water as polynomials of its level, for the searches; notation as in
// ManningIrreg.h.
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
// A's and 2/3 of P's, A^3 / T by four times as much: 8e-13 (1 + Xh/A). DecidedBy = 2e-12 covers that, the
// roundings of the comparison, and what is of second order, for Xh/A < 1e9 is asked for. That leaves no water
// so thin that its area or width might round to 0 or below, which would fault.
//
// Nothing is taken for rising: where a bench makes the perimeter jump, the flow falls. Only above the highest
// point A grows, Xh/A falls and P stays: a flow reached there is reached at every level above.
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

#include "engine/Ground.h"
#include "engine/Search.h"

namespace ManningIrreg {

// A surveyed section and what its searches have found out about it.
class SurveyedSection {
 public:
  SurveyedSection(const PointTable& points, int count)
      : ground(points, count), roughness(points, ground.last), ordinary_(IsOrdinary()) {}

  // Was the section read from these very points?
  bool IsOf(const PointTable& points, int count) const {
    const auto same = [](const EngineValue& cell, double x) {
      return std::bit_cast<std::uint64_t>(cell.Number()) == std::bit_cast<std::uint64_t>(x);
    };
    if (count != static_cast<int>(ground.last)) return false;
    size_t s = 0;
    for (size_t i = 1; i <= ground.last; ++i) {
      if (!same(points[i][1], ground.x[i]) || !same(points[i][2], ground.e[i])) return false;
      if (i == ground.last) break;
      const bool starts = s < roughness.count && roughness.subsections[s].from == i;
      if (points[i][3].IsEmptyText() == starts) return false;
      if (starts && !same(points[i][3], roughness.subsections[s++].n)) return false;
    }
    return true;
  }

  // Is the flow (ft^3/s) at the water surface W (ft) below Q? Is the section factor below Z (ft^2.5)? Nothing
  // where only the segments themselves can decide.
  std::optional<bool> FlowIsBelow(double W, double rootS, double Q) {
    const Piece* piece = Search::Ordinary(rootS, Q) ? At(W) : nullptr;
    if (piece == nullptr) return std::nullopt;
    double conveyance = 0;
    double roundings = 0;
    double perimeter = 0;
    for (size_t s = 0; s < roughness.count; ++s) {
      const Water water = strips_[piece->firstStrip + s].At(W - piece->from);
      perimeter += water.P;
      if (water.A == 0) continue;  // dry, or a wall: its segments have no width either
      const double rounding = Rounding(water.A, W);
      if (!(rounding < 1e9)) return std::nullopt;
      const double part =
          roughness.subsections[s].kOverN * water.A * Search::Power<2>(Search::CubeRoot(water.A / water.P));
      conveyance += part;
      roundings += part * rounding;
    }
    if (perimeter == 0) return std::nullopt;
    return IsBelow(rootS * conveyance, Q, rootS * roundings);
  }

  std::optional<bool> FactorIsBelow(double W, double Z) {
    const Piece* piece = Search::Ordinary(Z) ? At(W) : nullptr;
    if (piece == nullptr) return std::nullopt;
    double A = 0;
    double T = 0;
    for (size_t s = 0; s < roughness.count; ++s) {
      const Water water = strips_[piece->firstStrip + s].At(W - piece->from);
      A += water.A;
      T += water.T;
    }
    const double rounding = Rounding(A, W);
    if (!(rounding < 1e9)) return std::nullopt;
    return IsBelow(A * A * A, Z * Z * T, A * A * A * rounding);
  }

  const Ground ground;
  const Roughness roughness;

 private:
  // A subsection.
  struct Strip {
    Water At(double t) const { return {a0 + t * (a1 + t * a2), p0 + t * p1, a1 + 2 * a2 * t}; }
    double a0 = 0, a1 = 0, a2 = 0, p0 = 0, p1 = 0;
  };
  struct Piece {
    double from, to;    // W in (from, to]
    size_t firstStrip;  // of one for each subsection
  };

  static std::optional<bool> IsBelow(double left, double right, double roundings) {
    constexpr double DecidedBy = 2e-12;
    if (left + DecidedBy * roundings < right) return true;
    if (left - DecidedBy * roundings > right) return false;
    return std::nullopt;
  }

  double Reach() const { return std::max(std::abs(ground.x[1]), std::abs(ground.x[ground.last])); }
  double Rounding(double A, double W) const { return 1 + Reach() * (W - ground.low) / A; }

  bool IsOrdinary() const {
    bool ordinary = std::max({-ground.low, ground.high, Reach()}) <= 1e9 && roughness.IsWhole();
    for (size_t i = 1; i < ground.last; ++i) {
      const double rise = std::abs(ground.e[i + 1] - ground.e[i]);
      ordinary &= ground.dx[i] >= 1e-20 || ground.dx[i] == 0;
      ordinary &= rise >= 1e-20 || rise == 0;
    }
    for (size_t s = 0; s < roughness.count; ++s)
      ordinary &= Search::Ordinary(roughness.subsections[s].kOverN);
    return ordinary;
  }

  // The piece that has the level W; none where no ground lies below.
  const Piece* At(double W) {
    const auto has = [&](size_t i) {
      return i < pieces_.size() && pieces_[i].from < W && W <= pieces_[i].to;
    };
    if (!has(last_)) {
      const auto place = std::lower_bound(pieces_.begin(), pieces_.end(), W,
                                          [](const Piece& each, double level) { return each.to < level; });
      last_ = static_cast<size_t>(place - pieces_.begin());
      if (!has(last_)) {
        if (!ordinary_ || !(W > ground.low)) return nullptr;
        pieces_.insert(place, Build(W));
      }
    }
    return &pieces_[last_];
  }

  Piece Build(double W) {
    Piece piece{ground.low, std::numeric_limits<double>::infinity(), strips_.size()};
    for (size_t i = 1; i <= ground.last; ++i) {
      const double e = ground.e[i];
      if (e < W) {
        if (e > piece.from) piece.from = e;
      } else if (e < piece.to) {
        piece.to = e;
      }
    }
    for (size_t s = 0; s < roughness.count; ++s) {
      Strip strip;
      for (size_t i = roughness.subsections[s].from; i < roughness.subsections[s].to; ++i)
        Add(strip, i, piece.from);
      strips_.push_back(strip);
    }
    return piece;
  }

  // Adds the segment i, whole or clipped, for levels above from.
  void Add(Strip& strip, size_t i, double from) const {
    const auto [low, high] = std::minmax(ground.e[i], ground.e[i + 1]);
    const double depth = from - low;
    if (depth < 0) return;
    if (high <= from) {
      strip.a0 += ground.dx[i] * (depth + (from - high)) / 2;
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

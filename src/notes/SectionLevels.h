// Every water level at which a surveyed section carries a flow, and every level at which the flow is
// critical.
//
// Between two neighbouring elevations of the ground the area of a subsection is a quadratic of the depth h of
// water there with no negative coefficient, its wetted perimeter is linear. Conveyance P (A/P)^(5/3) and
// section factor T (A/T)^(3/2) are perspectives of convex powers, so both are convex functions of h: in each
// interval they fall to one lowest value at most and then rise. That makes the search complete, whatever the
// ground.
//
// Notation: h depth of water above the interval's lower elevation (ft), A flow area (ft^2), P wetted
// perimeter (ft), T top width (ft), Q flow (ft^3/s), W water-surface elevation (ft).
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "engine/ChannelState.h"

/// A range of water levels in which a quantity falls while the water rises. At a flat bench, where the wetted
/// perimeter or the top width grows at once, From and To are the same elevation.
struct FallingRange {
  double From, To;       ///< elevations (ft)
  double Before, After;  ///< the quantity at both
};

struct LevelSearch {
  std::vector<double> Levels;  ///< elevations (ft), ascending, each within 1e-6 ft of the crossing
  std::vector<FallingRange> Falls;
};

/// A subsection of one n and the water in it: A = a0 + a1 h + a2 h^2, P = p0 + p1 h, T = a1 + 2 a2 h.
struct Subsection {
  std::size_t From, To;  ///< its first point and its last
  double N;
  double a0 = 0, a1 = 0, a2 = 0, p0 = 0, p1 = 0;

  double Area(double h) const { return a0 + h * (a1 + h * a2); }
  double Perimeter(double h) const { return p0 + h * p1; }
  double Width(double h) const { return a1 + 2 * h * a2; }
};

/// The water between two neighbouring elevations of the ground, or above the highest.
struct WaterInterval {
  double Bottom, Top;  ///< elevations (ft); the water's surface is above Bottom and not above Top
  std::vector<Subsection> Subsections;
};

/// The ground line of a surveyed section, cut at its elevations.
class SectionGround {
 public:
  /// Points 1 to count of the table, whose first has an n. Faults outside 2 to 101 points, and when a number
  /// is not finite.
  SectionGround(const PointTable& points, int count);

  double LowPoint() const { return elevations_.front(); }
  std::size_t Last() const { return x_.size() - 1; }
  double Elevation(std::size_t point) const { return e_[point]; }
  std::span<const Subsection> Subsections() const { return dry_; }

  /// The interval that holds the water surface W (ft), which lies above the lowest point.
  WaterInterval IntervalOf(double W) const;

  /// The water below W over the ground from the point i to the next, of which a part at least is wet: its
  /// ends.
  double FirstWetStation(std::size_t i, double W) const;
  double LastWetStation(std::size_t i, double W) const;
  /// Its area (ft^2); 0 when dry.
  double WetArea(std::size_t i, double W) const;

  /// Levels up to 998 ft above the lowest point that carry the flow Q at the slope whose root is given.
  LevelSearch FlowLevels(double Q, double rootS) const;
  /// Likewise those at which the flow Q is critical: A sqrt(A / T) = Q / sqrt(g).
  LevelSearch CriticalLevels(double Q) const;

 private:
  void Fill(WaterInterval& interval, double bottom, double top) const;
  template <typename Curve>
  LevelSearch Search(Curve curve, double target) const;

  /// The ground from one point to the next.
  struct Segment {
    double Low, High;      // elevations
    double Dx, Length;     // between the stations and along the ground
    double Cotangent = 0;  // of its inclination; 0 for flat ground, which is never partly wet
    double Slant = 0;      // length per height
  };

  std::vector<double> x_, e_;       // by point, from 1
  std::vector<Segment> segments_;   // likewise
  std::vector<double> elevations_;  // sorted, each once
  std::vector<Subsection> dry_;
};

/// Flow (ft^3/s) of a subsection with the depth h of water in its interval, by Manning's equation; 0 when
/// dry.
double SubsectionFlow(const Subsection& subsection, double h, double rootS);

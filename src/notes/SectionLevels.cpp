// See SectionLevels.h.
#include "notes/SectionLevels.h"

#include <algorithm>
#include <cmath>

#include "engine/Bisection.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/UniformFlow.h"

namespace {

constexpr double Rounding = 1e-12;  // relative; a difference below it is no drop

/// A convex quantity of an interval's water and its rate of change with h.
struct Sample {
  double Value = 0, Rate = 0;
};

/// The search of one curve over all intervals, from below.
class Tracker {
 public:
  explicit Tracker(double target) : target_(target) {}

  template <typename Function>
  void Add(const WaterInterval& interval, Function curve) {
    const double height = interval.Top - interval.Bottom;
    const Sample low = curve(0.0);
    const Sample high = curve(height);
    double turn = 0;
    Sample lowest = low;
    if (low.Rate < 0) {
      turn = high.Rate <= 0 ? height : Turn(height, curve);
      lowest = curve(turn);
    }
    if (low.Value < before_ * (1 - Rounding)) AddFall(interval.Bottom, interval.Bottom, before_, low.Value);
    if (turn > Constants::SearchTolerance)
      AddFall(interval.Bottom, interval.Bottom + turn, low.Value, lowest.Value);
    if (low.Value > target_ && lowest.Value <= target_) AddLevel(interval.Bottom, turn, 0, curve);
    if (lowest.Value < target_ && high.Value >= target_) AddLevel(interval.Bottom, turn, height, curve);
    before_ = high.Value;
  }

  LevelSearch Found;

 private:
  /// Where the rate of change passes zero; it never falls.
  template <typename Function>
  static double Turn(double height, Function curve) {
    if (height <= Constants::SearchTolerance) return height;
    return LastMidpoint(0, height, 0, [&](double h) { return curve(h).Rate; });
  }

  /// The crossing between h of the lower value and h of the higher one.
  template <typename Function>
  void AddLevel(double bottom, double lower, double higher, Function curve) {
    const bool narrow = std::abs(higher - lower) <= Constants::SearchTolerance;
    const double h = narrow
                         ? (lower + higher) / 2
                         : LastMidpoint(lower, higher, target_, [&](double at) { return curve(at).Value; });
    Found.Levels.push_back(bottom + h);
  }

  void AddFall(double from, double to, double before, double after) {
    if (!Found.Falls.empty() && Found.Falls.back().To == from) {
      Found.Falls.back().To = to;
      Found.Falls.back().After = after;
    } else {
      Found.Falls.push_back({from, to, before, after});
    }
  }

  double target_;
  double before_ = 0;
};

}  // namespace

double SubsectionFlow(const Subsection& subsection, double h, double rootS) {
  const double A = subsection.Area(h);
  const double P = subsection.Perimeter(h);
  return A > 0 ? UniformFlow::Discharge(A, P, subsection.N, rootS) : 0;
}

SectionGround::SectionGround(const PointTable& points, int count) {
  if (count < 2) ThrowFault("the section has too few points");
  if (count >= static_cast<int>(points.size())) ThrowFault("the section has too many points");
  const auto last = static_cast<std::size_t>(count);
  x_.resize(last + 1);
  e_.resize(last + 1);
  segments_.resize(last);
  for (std::size_t i = 1; i <= last; ++i) {
    x_[i] = Finite(points[i][1].Number());
    e_[i] = Finite(points[i][2].Number());
  }
  for (std::size_t i = 1; i < last; ++i) {
    if (!points[i][3].IsEmptyText()) dry_.push_back({i, i, points[i][3].Number()});
    if (dry_.empty()) ThrowFault("the first point has no Manning's n");
    dry_.back().To = i + 1;
    const auto [low, high] = std::minmax(e_[i], e_[i + 1]);
    const double dx = x_[i + 1] - x_[i];
    const double rise = high - low;
    segments_[i] = {low, high, dx, std::sqrt(dx * dx + rise * rise)};
    if (rise == 0) continue;
    segments_[i].Cotangent = dx / rise;
    segments_[i].Slant = segments_[i].Length / rise;
  }
  elevations_.assign(e_.begin() + 1, e_.end());
  std::ranges::sort(elevations_);
  elevations_.erase(std::unique(elevations_.begin(), elevations_.end()), elevations_.end());
}

void SectionGround::Fill(WaterInterval& interval, double bottom, double top) const {
  interval.Bottom = bottom;
  interval.Top = top;
  interval.Subsections = dry_;
  for (Subsection& each : interval.Subsections) {
    for (std::size_t i = each.From; i < each.To; ++i) {
      const Segment& ground = segments_[i];
      if (ground.Low > bottom || ground.Low >= top) continue;
      const double depth = bottom - ground.Low;
      if (ground.High <= bottom) {
        each.a0 += ground.Dx * (depth + (bottom - ground.High)) / 2;
        each.a1 += ground.Dx;
        each.p0 += ground.Length;
      } else {
        each.a0 += ground.Cotangent * depth * depth / 2;
        each.a1 += ground.Cotangent * depth;
        each.a2 += ground.Cotangent / 2;
        each.p0 += ground.Slant * depth;
        each.p1 += ground.Slant;
      }
    }
  }
}

WaterInterval SectionGround::IntervalOf(double W) const {
  const auto above = std::ranges::lower_bound(elevations_, W);
  if (above == elevations_.begin()) ThrowFault("there is no water in the section");
  WaterInterval interval{};
  Fill(interval, *(above - 1), above == elevations_.end() ? LowPoint() + Constants::DeepestResult : *above);
  return interval;
}

double SectionGround::FirstWetStation(std::size_t i, double W) const {
  return e_[i] < W ? x_[i] : x_[i + 1] - segments_[i].Cotangent * (W - e_[i + 1]);
}

double SectionGround::LastWetStation(std::size_t i, double W) const {
  return e_[i + 1] < W ? x_[i + 1] : x_[i] + segments_[i].Cotangent * (W - e_[i]);
}

double SectionGround::WetArea(std::size_t i, double W) const {
  const Segment& ground = segments_[i];
  const double depth = W - ground.Low;
  if (depth <= 0) return 0;
  if (ground.High < W) return ground.Dx * (depth + (W - ground.High)) / 2;
  return ground.Cotangent * depth * depth / 2;
}

template <typename Curve>
LevelSearch SectionGround::Search(Curve curve, double target) const {
  const double limit = LowPoint() + Constants::DeepestResult;
  Tracker tracker(target);
  WaterInterval interval{};
  for (std::size_t i = 0; i < elevations_.size() && elevations_[i] < limit; ++i) {
    const bool highest = i + 1 == elevations_.size();
    Fill(interval, elevations_[i], highest ? limit : std::min(elevations_[i + 1], limit));
    tracker.Add(interval, [&](double h) { return curve(interval, h); });
  }
  return std::move(tracker.Found);
}

LevelSearch SectionGround::FlowLevels(double Q, double rootS) const {
  return Search(
      [rootS](const WaterInterval& interval, double h) {
        Sample sum;
        for (const Subsection& each : interval.Subsections) {
          const double A = each.Area(h);
          if (!(A > 0)) continue;
          const double P = each.Perimeter(h);
          const double flow = UniformFlow::Discharge(A, P, each.N, rootS);
          sum.Value += flow;
          sum.Rate += flow * (5 * each.Width(h) / A - 2 * each.p1 / P) / 3;
        }
        return sum;
      },
      Q);
}

LevelSearch SectionGround::CriticalLevels(double Q) const {
  return Search(
      [](const WaterInterval& interval, double h) {
        double A = 0;
        double T = 0;
        double widening = 0;
        for (const Subsection& each : interval.Subsections) {
          A += each.Area(h);
          T += each.Width(h);
          widening += 2 * each.a2;
        }
        if (!(A > 0 && T > 0)) return Sample{};
        const double factor = UniformFlow::SectionFactor(A, T);
        return Sample{factor, factor * (3 * T / A - widening / T) / 2};
      },
      UniformFlow::CriticalSectionFactor(Q));
}

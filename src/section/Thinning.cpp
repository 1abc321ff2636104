// See Thinning.h.
#include "section/Thinning.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <queue>
#include <tuple>

namespace Survey {

namespace {

double TriangleArea(const Point& a, const Point& b, const Point& c) {
  return std::abs((b.X.Value - a.X.Value) * (c.Z.Value - a.Z.Value) -
                  (c.X.Value - a.X.Value) * (b.Z.Value - a.Z.Value)) /
         2;
}

/// The points still there as a chain of neighbours, and what each would take with it.
class Chain {
 public:
  Chain(const std::vector<Point>& points, const std::vector<bool>& keep)
      : points_(points), keep_(keep), before_(points.size()), after_(points.size()), area_(points.size()) {
    std::vector<Candidate> candidates;
    for (std::size_t i = 0; i < points.size(); ++i) {
      before_[i] = i == 0 ? 0 : i - 1;
      after_[i] = i + 1;
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
      if (!keep_[i]) candidates.emplace_back(area_[i] = AreaAt(i), i);
    }
    queue_ = Queue(std::greater<>(), std::move(candidates));
  }

  /// Takes out the point of the least triangle. Its neighbours' triangles grow or shrink with it.
  std::size_t TakeLeast() {
    while (area_[queue_.top().second] != queue_.top().first) queue_.pop();
    const std::size_t taken = queue_.top().second;
    queue_.pop();
    area_[taken] = -1;
    after_[before_[taken]] = after_[taken];
    before_[after_[taken]] = before_[taken];
    for (const std::size_t neighbour : {before_[taken], after_[taken]}) {
      if (!keep_[neighbour]) queue_.emplace(area_[neighbour] = AreaAt(neighbour), neighbour);
    }
    return taken;
  }

 private:
  using Candidate = std::pair<double, std::size_t>;
  using Queue = std::priority_queue<Candidate, std::vector<Candidate>, std::greater<>>;

  double AreaAt(std::size_t i) const {
    return TriangleArea(points_[before_[i]], points_[i], points_[after_[i]]);
  }

  const std::vector<Point>& points_;
  const std::vector<bool>& keep_;
  std::vector<std::size_t> before_, after_;
  std::vector<double> area_;  // a candidate with another area is out of date
  Queue queue_;
};

}  // namespace

std::vector<bool> PointsToKeep(const Section& section) {
  const std::vector<Point>& points = section.Points;
  std::vector<bool> keep(points.size());
  if (points.empty()) return keep;
  const auto height = [](const Point& point) { return point.Z.Value; };
  const auto keepAt = [&](auto point) { keep[static_cast<std::size_t>(point - points.begin())] = true; };
  const auto lowest = std::ranges::min_element(points, {}, height);
  keepAt(lowest);
  keepAt(std::ranges::max_element(points.begin(), std::next(lowest), {}, height));
  keepAt(std::ranges::max_element(lowest, points.end(), {}, height));
  keep.front() = keep.back() = true;
  std::optional<double> n;
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (points[i].N && points[i].N->Value != n) {
      keep[i] = true;
      n = points[i].N->Value;
    }
    if (std::ranges::count(section.Banks, points[i].X.Value) > 0) keep[i] = true;
  }
  return keep;
}

void Thin(std::vector<Point>& points, const std::vector<bool>& keep, std::size_t most) {
  if (points.size() <= most) return;
  std::vector<bool> taken(points.size());
  Chain chain(points, keep);
  for (std::size_t left = points.size(); left > most; --left) taken[chain.TakeLeast()] = true;
  std::size_t i = 0;
  std::erase_if(points, [&](const Point&) { return taken[i++]; });
}

}  // namespace Survey

// See Thinning.h.
#include "section/Thinning.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <queue>

namespace Survey {

namespace {

constexpr double Kept = std::numeric_limits<double>::infinity();
constexpr double Taken = -1;

/// A point that is still there.
struct Link {
  double X, Z;
  double Area;  ///< of the triangle with its neighbours, or one of the above
  std::size_t Point, Before = 0, After = 0;
};

double TriangleArea(const Link& a, const Link& b, const Link& c) {
  return std::abs((b.X - a.X) * (c.Z - a.Z) - (c.X - a.X) * (b.Z - a.Z)) / 2;
}

/// The points still there as a chain of neighbours, thinned in rounds: each takes the points of the least
/// triangles, those of up to a quarter of the chain, so that only these have to be kept in their order.
class Chain {
 public:
  Chain(const std::vector<Point>& points, const std::vector<bool>& keep) {
    links_.reserve(points.size());
    for (std::size_t i = 0; i < points.size(); ++i)
      links_.push_back({points[i].X.Value, points[i].Z.Value, keep[i] ? Kept : 0, i});
    Join();
    for (std::size_t i = 0; i < links_.size(); ++i) Measure(i);
  }

  const std::vector<Link>& Links() const { return links_; }

  void ThinBy(std::size_t most) {
    const double limit = Limit();
    std::vector<Candidate> least;
    for (std::size_t i = 0; i < links_.size(); ++i) {
      if (links_[i].Area <= limit) least.emplace_back(links_[i].Area, i);
    }
    Queue queue(std::greater<>(), std::move(least));
    while (!queue.empty() && most > 0) {
      const auto [area, i] = queue.top();
      queue.pop();
      if (links_[i].Area != area) continue;  // out of date
      links_[i].Area = Taken;
      --most;
      links_[links_[i].Before].After = links_[i].After;
      links_[links_[i].After].Before = links_[i].Before;
      for (const std::size_t neighbour : {links_[i].Before, links_[i].After}) {
        Measure(neighbour);
        if (links_[neighbour].Area <= limit) queue.emplace(links_[neighbour].Area, neighbour);
      }
    }
    std::erase_if(links_, [](const Link& link) { return link.Area == Taken; });
    Join();
  }

 private:
  using Candidate = std::pair<double, std::size_t>;
  using Queue = std::priority_queue<Candidate, std::vector<Candidate>, std::greater<>>;

  void Join() {
    for (std::size_t i = 0; i < links_.size(); ++i) {
      links_[i].Before = i - 1;
      links_[i].After = i + 1;
    }
  }

  void Measure(std::size_t i) {
    Link& link = links_[i];
    if (link.Area == Kept) return;
    const double area = TriangleArea(links_[link.Before], link, links_[link.After]);
    link.Area = std::isfinite(area) ? area : std::numeric_limits<double>::max();
  }

  double Limit() const {
    std::vector<double> areas;
    for (const Link& link : links_) {
      if (link.Area != Kept) areas.push_back(link.Area);
    }
    const auto quarter = areas.begin() + static_cast<std::ptrdiff_t>(areas.size() / 4);
    std::ranges::nth_element(areas, quarter);
    return *quarter;
  }

  std::vector<Link> links_;
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
  Chain chain(points, keep);
  while (chain.Links().size() > most) chain.ThinBy(chain.Links().size() - most);
  std::vector<Point> left;
  for (const Link& link : chain.Links()) left.push_back(points[link.Point]);
  points = std::move(left);
}

}  // namespace Survey

// See Outline.h.
#include "section/Outline.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Outline {

double Crossing(const Point& a, const Point& b, double W) {
  return a.X + (W - a.Y) * (b.X - a.X) / (b.Y - a.Y);
}

Line Prism(double b, double zL, double zR, double height) {
  const double toe = zL * height;
  return {{0, height}, {toe, 0}, {toe + b, 0}, {toe + b + zR * height, height}};
}

Line Survey(const PointTable& points, int count) {
  Line ground;
  for (const auto& point : std::span(points).subspan(1, static_cast<std::size_t>(count)))
    ground.push_back({point[1].Number(), point[2].Number()});
  return ground;
}

std::vector<Line> Pools(std::span<const Point> ground, double W) {
  std::vector<Line> pools;
  Line pool;
  for (std::size_t i = 0; i < ground.size(); ++i) {
    const Point& point = ground[i];
    const bool wet = point.Y < W;
    if (wet && i == 0) pool.push_back({point.X, W});
    if (i > 0 && wet != (ground[i - 1].Y < W)) pool.push_back({Crossing(ground[i - 1], point, W), W});
    if (wet) pool.push_back(point);
    if (!wet && !pool.empty()) pools.push_back(std::exchange(pool, {}));
  }
  if (!pool.empty()) {
    pool.push_back({ground.back().X, W});
    pools.push_back(pool);
  }
  return pools;
}

Circle Pipe(double D) {
  return {{D / 2, D / 2}, D / 2};
}

Line Surface(const Circle& pipe, double W) {
  const double above = W - pipe.Centre.Y;
  if (std::abs(above) >= pipe.Radius) return {};
  const double half = std::sqrt((pipe.Radius - above) * (pipe.Radius + above));
  return {{pipe.Centre.X - half, W}, {pipe.Centre.X + half, W}};
}

std::vector<Subsection> Subsections(const PointTable& points, int count) {
  std::vector<Subsection> subsections;
  int kinds = 0;
  for (const auto& point : std::span(points).subspan(1, static_cast<std::size_t>(count))) {
    const double station = point[1].Number();
    if (!subsections.empty()) subsections.back().To = station;
    if (point[3].IsEmptyText()) continue;
    const auto same = std::ranges::find(subsections, point[3].Text(), &Subsection::ManningN);
    subsections.push_back(
        {station, station, point[3].Text(), same == subsections.end() ? kinds++ : same->Kind});
  }
  return subsections;
}

}  // namespace Outline

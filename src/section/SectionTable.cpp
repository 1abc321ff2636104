// See SectionTable.h.
#include "section/SectionTable.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

namespace SectionTable {

namespace {

/// Takes in the points of the outline or of the water surface, one after the other.
class Series {
 public:
  Series(Table& table, int xColumn) : table_(table), x_(static_cast<std::size_t>(xColumn)) {}

  void Add(double x, double y) {
    if (next_ < table_.size()) {
      table_[next_][x_] = x;
      table_[next_][x_ + 1] = y;
    }
    ++next_;
  }
  void Break() { ++next_; }

 private:
  Table& table_;
  std::size_t x_;
  std::size_t next_ = 0;
};

/// The points of a survey; a row that the table has not is empty like one that was never entered.
class Survey {
 public:
  Survey(const PointTable& points, int count) : points_(points), count_(static_cast<std::size_t>(count)) {}

  std::size_t Count() const { return count_; }
  Point At(std::size_t row) const {
    if (row >= points_.size()) return {0, 0};
    return {points_[row][1].Number(), points_[row][2].Number()};
  }

 private:
  const PointTable& points_;
  std::size_t count_;
};

double Crossing(const Point& a, const Point& b, double W) {
  return a.X + (W - a.Y) * (b.X - a.X) / (b.Y - a.Y);
}

}  // namespace

Table Prismatic(double b, double zL, double zR, double y) {
  const double H = 1.2 * y;
  const double mx = 0.01 * b;
  const double my = 0.01 * H;
  Table table;
  Series outline(table, OutlineX);
  outline.Add(mx, H + my);
  outline.Add(zL * H + mx, my);
  outline.Add(zL * H + b + mx, my);
  outline.Add(zL * H + b + zR * H + mx, H + my);
  Series water(table, WaterX);
  water.Add(zL * H - zL * y + mx, y + my);
  water.Add(zL * H + b + zR * y + mx, y + my);
  return table;
}

Table Circular(double D, double y, double T) {
  const double r = D / 2;
  const double mx = 0.01 * D;
  const double my = mx;
  Table table;
  Series outline(table, OutlineX);
  for (int i = 1; i <= 51; ++i) {
    const double angle = (i - 1) * 2 * 3.141592654 / 50;
    outline.Add(r * std::sin(angle) + mx + r, r * std::cos(angle) + my + r);
  }
  Series water(table, WaterX);
  water.Add(r - T / 2 + mx, y + my);
  water.Add(r + T / 2 + mx, y + my);
  return table;
}

Table Irregular(const PointTable& points, int count, double W) {
  Table table;
  const Survey survey(points, count);
  Series outline(table, OutlineX);
  Series water(table, WaterX);
  for (std::size_t row = 1; row <= survey.Count(); ++row) {
    const Point a = survey.At(row);
    const Point b = survey.At(row + 1);
    if (W > a.Y && W > b.Y) {
      water.Add(a.X, W);
    } else if (a.Y >= W && W > b.Y) {
      water.Break();
      water.Add(Crossing(a, b, W), W);
    } else if (a.Y < W && W <= b.Y) {
      water.Add(Crossing(a, b, W), W);
      water.Break();
    } else {
      water.Break();
    }
    outline.Add(a.X, a.Y);
  }
  return table;
}

std::vector<std::vector<Point>> Pools(std::span<const Point> ground, double W) {
  std::vector<std::vector<Point>> pools;
  std::vector<Point> pool;
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

std::vector<std::vector<Point>> Pools(const Table& table) {
  const auto surface = std::ranges::find_if(table, [](const auto& row) { return row[WaterY].has_value(); });
  if (surface == table.end()) return {};
  std::vector<Point> ground;
  for (const auto& row : table)
    if (row[OutlineX]) ground.push_back({*row[OutlineX], *row[OutlineY]});
  return Pools(ground, *(*surface)[WaterY]);
}

std::vector<Stretch> Stretches(const PointTable& points, int count) {
  std::vector<Stretch> stretches;
  for (const auto& point : std::span(points).subspan(1, static_cast<std::size_t>(count))) {
    const double station = point[1].Number();
    if (!stretches.empty()) stretches.back().To = station;
    if (!point[3].IsEmptyText()) stretches.push_back({station, station, point[3].Text()});
  }
  return stretches;
}

}  // namespace SectionTable

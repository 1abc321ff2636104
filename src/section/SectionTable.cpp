// See SectionTable.h.
#include "section/SectionTable.h"

#include <algorithm>
#include <cmath>

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

}  // namespace

Table Prismatic(double b, double zL, double zR, double y) {
  const double H = 1.2 * y;
  const double mx = 0.01 * b;
  const double my = 0.01 * H;
  Table table;
  Series outline(table, OutlineX);
  for (const Outline::Point& point : Outline::Prism(b, zL, zR, H)) outline.Add(point.X + mx, point.Y + my);
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

Outline::Circle PipeWall(double D) {
  Outline::Circle wall = Outline::Pipe(D);
  wall.Centre.X += 0.01 * D;
  wall.Centre.Y += 0.01 * D;
  return wall;
}

Table Irregular(const PointTable& points, int count, double W) {
  Table table;
  // Behind the last point lies a row that was never entered.
  Outline::Line ground = Outline::Survey(points, std::min(count + 1, static_cast<int>(points.size()) - 1));
  ground.resize(static_cast<std::size_t>(count) + 1);
  Series outline(table, OutlineX);
  Series water(table, WaterX);
  for (std::size_t i = 0; i + 1 < ground.size(); ++i) {
    const Outline::Point& a = ground[i];
    const Outline::Point& b = ground[i + 1];
    if (W > a.Y && W > b.Y) {
      water.Add(a.X, W);
    } else if (a.Y >= W && W > b.Y) {
      water.Break();
      water.Add(Outline::Crossing(a, b, W), W);
    } else if (a.Y < W && W <= b.Y) {
      water.Add(Outline::Crossing(a, b, W), W);
      water.Break();
    } else {
      water.Break();
    }
    outline.Add(a.X, a.Y);
  }
  return table;
}

std::vector<Outline::Line> Pools(const Table& table) {
  const auto surface = std::ranges::find_if(table, [](const auto& row) { return row[WaterY].has_value(); });
  if (surface == table.end()) return {};
  Outline::Line ground;
  for (const auto& row : table)
    if (row[OutlineX]) ground.push_back({*row[OutlineX], *row[OutlineY]});
  return Outline::Pools(ground, *(*surface)[WaterY]);
}

}  // namespace SectionTable

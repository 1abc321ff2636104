// The drawing of a cross-section: worked shapes, pools and ranges of one n.
#include "section/SectionTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/ManningIrreg.h"

namespace {

using namespace SectionTable;
using testing::DoubleNear;
using testing::Optional;

using Points = std::vector<std::pair<double, double>>;
constexpr std::pair<double, double> Blank{-1e9, -1e9};

/// The rows of a series are these points and no others; Blank stands for an empty row.
void ExpectSeries(const Table& table, int xColumn, const Points& points) {
  const auto x = static_cast<std::size_t>(xColumn);
  for (std::size_t row = 0; row < table.size(); ++row) {
    const bool empty = row >= points.size() || points[row] == Blank;
    ASSERT_EQ(table[row][x].has_value(), !empty) << "row " << row + 1;
    ASSERT_EQ(table[row][x + 1].has_value(), !empty) << "row " << row + 1;
    if (empty) continue;
    EXPECT_THAT(table[row][x], Optional(DoubleNear(points[row].first, 1e-12))) << "row " << row + 1;
    EXPECT_THAT(table[row][x + 1], Optional(DoubleNear(points[row].second, 1e-12))) << "row " << row + 1;
  }
}

PointTable Survey(const Points& points) {
  PointTable table;
  for (std::size_t i = 0; i < points.size(); ++i) {
    table[i + 1][1] = points[i].first;
    table[i + 1][2] = points[i].second;
  }
  return table;
}

TEST(SectionDrawing, RectangleTriangleAndTrapezoid) {
  const Table rectangle = Prismatic(10, 0, 0, 2);
  ExpectSeries(rectangle, OutlineX, {{0.1, 2.424}, {0.1, 0.024}, {10.1, 0.024}, {10.1, 2.424}});
  ExpectSeries(rectangle, WaterX, {{0.1, 2.024}, {10.1, 2.024}});
  const Table triangle = Prismatic(0, 2, 2, 1);
  ExpectSeries(triangle, OutlineX, {{0, 1.212}, {2.4, 0.012}, {2.4, 0.012}, {4.8, 1.212}});
  ExpectSeries(triangle, WaterX, {{0.4, 1.012}, {4.4, 1.012}});
  const Table trapezoid = Prismatic(5, 1, 3, 10);
  ExpectSeries(trapezoid, OutlineX, {{0.05, 12.12}, {12.05, 0.12}, {17.05, 0.12}, {53.05, 12.12}});
  ExpectSeries(trapezoid, WaterX, {{2.05, 10.12}, {47.05, 10.12}});
}

TEST(SectionDrawing, CircleOfFiftyChords) {
  const Table pipe = Circular(2, 1, 2);
  for (const auto& [row, y] : {std::pair<std::size_t, double>(0, 2.02), {25, 0.02}, {50, 2.02}}) {
    EXPECT_THAT(pipe[row][OutlineX], Optional(DoubleNear(1.02, 1e-8))) << row;
    EXPECT_THAT(pipe[row][OutlineY], Optional(DoubleNear(y, 1e-8))) << row;
  }
  EXPECT_GT(*pipe[1][OutlineX], 1.02) << "clockwise";
  EXPECT_EQ(pipe[51][OutlineX], std::nullopt);
  ExpectSeries(pipe, WaterX, {{0.02, 1.02}, {2.02, 1.02}});
}

// Two low spots with a bank of 6 ft between them, and dry land at both ends.
const Points TwoLows = {{0, 10}, {10, 0}, {20, 6}, {30, 1}, {40, 11}};

TEST(SectionDrawing, EachPoolHasItsOwnWaterLine) {
  const Table table = Irregular(Survey(TwoLows), 5, 4);
  ExpectSeries(table, OutlineX, TwoLows);
  // Behind the last point lies the empty row at (0, 0): the ground falls to it, and one more crossing is
  // noted.
  const double behind = 40 + (4 - 11) * (0 - 40) / (0 - 11.0);
  ExpectSeries(
      table, WaterX,
      {Blank, {6, 4}, {10 + 10 * 4 / 6.0, 4}, Blank, Blank, {24, 4}, {33, 4}, Blank, Blank, {behind, 4}});
  EXPECT_TRUE(Pools(Irregular(Survey(TwoLows), 5, 0)).empty()) << "a level at the lowest point is dry";
}

TEST(SectionDrawing, ABankExactlyAtTheLevelPartsTheWater) {
  const Table table =
      Irregular(Survey({{0, 10}, {10, 0}, {20, 4}, {30, 0}, {40, 4}, {50, 4}, {60, 8}}), 7, 4);
  const double behind = 60 + (4 - 8) * (0 - 60) / (0 - 8.0);
  ExpectSeries(
      table, WaterX,
      {Blank, {6, 4}, {20, 4}, Blank, Blank, {20, 4}, {40, 4}, Blank, Blank, Blank, Blank, {behind, 4}});
  EXPECT_EQ(Pools(table).size(), 2U);
}

TEST(SectionDrawing, WaterBeyondTheLastPointEndsThere) {
  const Table table = Irregular(Survey({{0, 10}, {10, 0}, {20, 3}}), 3, 4);
  ExpectSeries(table, WaterX, {Blank, {6, 4}, {10, 4}, {20, 4}});
  const auto pools = Pools(table);
  ASSERT_EQ(pools.size(), 1U);
  EXPECT_DOUBLE_EQ(pools[0].back().X, 20);
  EXPECT_DOUBLE_EQ(pools[0].back().Y, 4);
}

TEST(SectionDrawing, AFullTableIsDrawnAndMoreWaterThanItHoldsIsNot) {
  Points teeth;
  for (int i = 0; i < 101; ++i) teeth.emplace_back(i, i % 2 == 0 ? 2 : 0);
  const Table table = Irregular(Survey(teeth), 101, 1);
  EXPECT_THAT(table[100][OutlineX], Optional(100.0));
  EXPECT_EQ(table[101][OutlineX], std::nullopt);
  EXPECT_EQ(Pools(table).size(), 50U);
}

double AreaOf(const Outline::Line& polygon) {
  double twice = 0;
  const Outline::Point* before = &polygon.back();
  for (const Outline::Point& point : polygon) {
    twice += before->X * point.Y - point.X * before->Y;
    before = &point;
  }
  return std::abs(twice) / 2;
}

TEST(SectionDrawing, TheFilledPoolsHaveTheFlowArea) {
  const Points underwaterEnds = {{0, 2}, {5, -3}, {9, 7}, {12, 1}, {20, 3}};
  for (const Points& points : {TwoLows, underwaterEnds}) {
    const PointTable survey = Survey(points);
    for (const double level : {0.5, 1.0, 2.5, 3.0, 6.0, 6.5, 9.0}) {
      double filled = 0;
      for (const auto& pool : Pools(Irregular(survey, 5, level))) filled += AreaOf(pool);
      EXPECT_NEAR(filled, ManningIrreg::IrregArea(survey, 5, level), 1e-12) << level;
    }
  }
  const auto trapezoid = Pools(Prismatic(5, 1, 3, 10));
  ASSERT_EQ(trapezoid.size(), 1U);
  EXPECT_NEAR(AreaOf(trapezoid[0]), (5 + 45) / 2.0 * 10, 1e-9);
}

TEST(SectionDrawing, SubsectionsBeginWhereAnNStands) {
  PointTable points = Survey(TwoLows);
  points[1][3] = "0.03";
  points[3][3] = 0.05;
  points[4][3] = "0.03";
  const std::vector<Outline::Subsection> expected = {
      {0, 20, "0.03", 0}, {20, 30, "0.05", 1}, {30, 40, "0.03", 0}};
  EXPECT_EQ(Outline::Subsections(points, 5), expected);
  EXPECT_TRUE(Outline::Subsections(Survey(TwoLows), 5).empty());
}

TEST(SectionDrawing, ThePipesWaterMeetsItsWall) {
  // 1.3 ft deep in a pipe of 2 ft: half of it is sqrt(1 - 0.3^2) = 0.9539392 wide.
  const Outline::Line surface = Outline::Surface(PipeWall(2), 1.32);
  ASSERT_EQ(surface.size(), 2U);
  EXPECT_NEAR(surface[0].X, 1.02 - 0.9539392014, 1e-9);
  EXPECT_NEAR(surface[1].X, 1.02 + 0.9539392014, 1e-9);
  for (const double level : {0.0, 2.0, 2.5, -1.0})
    EXPECT_TRUE(Outline::Surface(Outline::Pipe(2), level).empty());
}

}  // namespace

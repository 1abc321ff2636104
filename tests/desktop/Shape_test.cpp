// The drawing of a channel: true shapes, water where it stands, labels that keep clear of each other.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <cmath>

#include "desktop/main/ShapeLayout.h"
#include "engine/ChannelState.h"

namespace {

double AreaOf(const QPolygonF& polygon) {
  double twice = 0;
  for (qsizetype i = 0; i < polygon.size(); ++i) {
    const QPointF a = polygon[i];
    const QPointF b = polygon[(i + 1) % polygon.size()];
    twice += a.x() * b.y() - b.x() * a.y();
  }
  return std::abs(twice) / 2;
}

double WaterArea(const ShapeInputs& inputs) {
  double area = 0;
  for (const QPolygonF& pool : ShapeOf(inputs).Water) area += AreaOf(pool);
  return area;
}

/// A channel of the type of which nothing is known.
ShapeInputs Channel(std::string_view type) {
  return {std::string(type), {}, {}, {}, {}, {}, {}};
}

ShapeInputs Trapezoid(double y, double b, double zL, double zR) {
  return {std::string(ChannelTypes::Trapezoidal), y, b, zL, zR, {}, {}};
}

ShapeInputs Pipe(double y, double D) {
  return {std::string(ChannelTypes::Circular), y, {}, {}, {}, D, {}};
}

ShapeInputs Section(double W, std::vector<QPointF> points) {
  return {std::string(ChannelTypes::Irregular), W, {}, {}, {}, {}, std::move(points)};
}

TEST(Shape, HoldsTheFlowArea) {
  EXPECT_NEAR(WaterArea(Trapezoid(3, 20, 2, 1)), (20 + 1.5 * 3) * 3, 1e-9);  // (b + (zL + zR) y / 2) y
  EXPECT_NEAR(WaterArea(Pipe(1, 2)), 3.14159265 / 2, 1e-3);                  // half a circle
  EXPECT_NEAR(WaterArea(Pipe(3, 2)), 3.14159265, 1e-3);                      // no more than full
  // Two pools of a hump, and a wet first station.
  const std::vector<QPointF> hump{{0, 4}, {2, 0}, {4, 4}, {6, 0}, {8, 4}};
  EXPECT_NEAR(WaterArea(Section(2, hump)), 4, 1e-9);
  EXPECT_EQ(ShapeOf(Section(2, hump)).Water.size(), 2);
  EXPECT_NEAR(WaterArea(Section(2, {{0, 1}, {3, 0}, {6, 2}})), 4.5 + 3, 1e-9);
  EXPECT_NEAR(WaterArea(Section(-1, hump)), 0, 1e-9);
}

TEST(Shape, TellsWhatIsOnlySchematic) {
  EXPECT_FALSE(ShapeOf(Trapezoid(3, 20, 2, 1)).Schematic);
  EXPECT_FALSE(ShapeOf(Pipe(1, 2)).Schematic);
  for (const std::string_view type : ChannelTypes::All) {
    const ShapeGeometry shape = ShapeOf(Channel(type));
    EXPECT_TRUE(shape.Schematic) << type;
    EXPECT_GT(shape.Bounds().width(), 0) << type;
    EXPECT_FALSE(shape.Water.isEmpty()) << type;
  }
}

TEST(Shape, IsInTrueProportionWhereThatCanBeRead) {
  const ShapeScale even = FitShape(ShapeOf(Trapezoid(3, 5, 1, 1)), {300, 300}, 100);
  EXPECT_DOUBLE_EQ(even.Across, even.Upwards);
  const ShapeScale flat = FitShape(ShapeOf(Trapezoid(1, 1000, 1, 1)), {300, 300}, 100);
  EXPECT_GT(flat.Upwards, 10 * flat.Across);
  EXPECT_LE(flat.Upwards * 1.25, 100);
  // A large canvas shows the same channel truly.
  const ShapeScale large = FitShape(ShapeOf(Trapezoid(3, 20, 2, 2)), {1200, 900}, 100);
  EXPECT_DOUBLE_EQ(large.Across, large.Upwards);
  const ShapeScale thin = FitShape(ShapeOf(Trapezoid(1000, 1, 0, 0)), {300, 300}, 100);
  EXPECT_GT(thin.Across, 10 * thin.Upwards);
  const ShapeScale round = FitShape(ShapeOf(Pipe(1, 2)), {900, 100}, 100);
  EXPECT_DOUBLE_EQ(round.Across, round.Upwards);
}

ShapeLabels LongLabels(bool pipe) {
  const ShapeLabel depth{QStringLiteral("y"), QStringLiteral(" = 1,234.567 m")};
  const ShapeLabel roughness{QStringLiteral("n"), QStringLiteral(" = 0.0125")};
  if (pipe) return {depth, {}, {}, {}, {QStringLiteral("D"), QStringLiteral(" = 1,200 mm")}, roughness};
  return {depth,
          {QStringLiteral("b"), QStringLiteral(" = 1,234.567 m")},
          {QStringLiteral("z_L"), QStringLiteral(" = 1.25")},
          {QStringLiteral("z_R"), QStringLiteral(" = 1.25")},
          {},
          roughness};
}

TEST(Shape, LabelsKeepClearOfEachOther) {
  const QFontMetricsF font(QGuiApplication::font());
  const double em = font.height();
  std::vector<ShapeInputs> all{
      Trapezoid(3, 20, 2, 1),   Trapezoid(1, 1e9, 0, 0),      Trapezoid(1e9, 1, 0, 0), Trapezoid(2, 0, 3, 3),
      Trapezoid(2, 0, 0.01, 9), Trapezoid(1e-9, 1, 1e3, 1e3), Pipe(0.01, 5),           Pipe(5, 5)};
  for (const std::string_view type : ChannelTypes::All) all.push_back(Channel(type));
  for (const ShapeInputs& inputs : all) {
    for (const QSizeF size : {QSizeF(18, 13), QSizeF(22, 35), QSizeF(80, 20), QSizeF(60, 50)}) {
      const QRectF canvas(QPointF(), size * em);
      const ShapeGeometry shape = ShapeOf(inputs);
      const ShapeLayout layout = LayOutShape(shape, LongLabels(shape.Pipe), canvas, font);
      for (qsizetype i = 0; i < layout.Labels.size(); ++i) {
        const ShapeLabel& label = layout.Labels[i];
        EXPECT_TRUE(canvas.contains(label.Place))
            << label.Plain().toStdString() << " of " << inputs.Type << " leaves " << size.width();
        for (qsizetype j = 0; j < i; ++j) {
          EXPECT_FALSE(label.Place.intersects(layout.Labels[j].Place))
              << label.Plain().toStdString() << " meets " << layout.Labels[j].Plain().toStdString() << " of "
              << inputs.Type << " at " << size.width() << "x" << size.height();
        }
      }
    }
  }
}

}  // namespace

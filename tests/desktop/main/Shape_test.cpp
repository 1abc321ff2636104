// The drawing of a channel: true shapes, water where it stands, labels that keep clear of each other.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtWidgets>
#include <cmath>
#include <utility>

#include "desktop/kit/PipeWater.h"
#include "desktop/main/ShapeLayout.h"
#include "engine/ChannelState.h"

namespace {

double AreaOf(const Outline::Line& polygon) {
  double twice = 0;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Outline::Point& a = polygon[i];
    const Outline::Point& b = polygon[(i + 1) % polygon.size()];
    twice += a.X * b.Y - b.X * a.Y;
  }
  return std::abs(twice) / 2;
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

ShapeInputs Section(double W, Outline::Line points) {
  return {std::string(ChannelTypes::Irregular), W, {}, {}, {}, {}, std::move(points)};
}

TEST(Shape, SaysWhatIsOnlySchematic) {
  EXPECT_FALSE(ShapeOf(Trapezoid(3, 20, 2, 1)).Schematic);
  EXPECT_FALSE(ShapeOf(Pipe(1, 2)).Schematic);
  for (const std::string_view type : ChannelTypes::All) {
    const ShapeGeometry shape = ShapeOf(Channel(type));
    EXPECT_TRUE(shape.Schematic) << type;
    EXPECT_GT(shape.Bounds().width(), 0) << type;
    EXPECT_GT(shape.Surface, shape.Bounds().top()) << type;
  }
}

TEST(Shape, ThePipesWaterIsASegmentOfItsCircle) {
  // Of the unit circle: 3/4 deep its water is pi - (acos 0.5 - 0.5 sqrt 0.75).
  for (const auto& [surface, area] :
       {std::pair(-1.0, 3.14159265), {-0.5, 2.52740780}, {0.0, 1.57079633}, {0.5, 0.61418485}, {1.0, 0.0}}) {
    const QTransform larger = QTransform::fromScale(1000, 1000);  // the painter's curves become fine sides
    Outline::Line sides;
    for (const QPointF& point : WaterInPipe({-1, -1, 2, 2}, surface).toFillPolygon(larger))
      sides.push_back({point.x() / 1000, point.y() / 1000});
    EXPECT_NEAR(AreaOf(sides), area, 2e-3) << surface;
  }
}

TEST(Shape, IsTrueToScaleUpToTwelveTimesAsWideAsDeep) {
  struct Case {
    ShapeInputs Inputs;
    double Exaggeration;
  };
  for (const auto& [inputs, exaggeration] : {Case{Trapezoid(3, 5, 1, 1), 1},
                                             {Trapezoid(1, 12, 0, 0), 1},
                                             {Trapezoid(1, 8, 2, 2), 1},
                                             {Trapezoid(1, 12.1, 0, 0), 2},
                                             {Trapezoid(1, 60, 0, 0), 5},
                                             {Trapezoid(1, 61, 0, 0), 10},
                                             {Trapezoid(12, 1, 0, 0), 1},
                                             {Trapezoid(1000, 1, 0, 0), 0.01},
                                             {Pipe(1, 2), 1},
                                             {Section(1, {{0, 2}, {5, 0}, {25, 2}}), 2}}) {
    const ShapeScale scale = FitShape(ShapeOf(inputs), {300, 200});
    EXPECT_NEAR(scale.Upwards / scale.Across, exaggeration, 1e-9 * exaggeration) << *inputs.Depth;
    EXPECT_LE(scale.Across * ShapeOf(inputs).Bounds().width(), 300);
    EXPECT_LE(scale.Upwards * ShapeOf(inputs).Bounds().height(), 200);
  }
}

ShapeLabels LongLabels(bool pipe) {
  const ShapeLabel depth{QStringLiteral("y"), QStringLiteral(" = 1,234.567 m")};
  const ShapeLabel roughness{QStringLiteral("n"), QStringLiteral(" = 0.0125")};
  const ShapeLabel critical{QStringLiteral("y_c"), QStringLiteral(" = 1.234 m")};
  if (pipe) {
    return {depth, {}, {}, {}, {QStringLiteral("D"), QStringLiteral(" = 1,200 mm")}, roughness, critical};
  }
  return {depth,
          {QStringLiteral("b"), QStringLiteral(" = 1,234.567 m")},
          {QStringLiteral("z_L"), QStringLiteral(" = 1.25")},
          {QStringLiteral("z_R"), QStringLiteral(" = 1.25")},
          {},
          roughness,
          critical};
}

TEST(Shape, LabelsKeepClearOfEachOther) {
  const QFontMetricsF font(QGuiApplication::font());
  const double em = font.height();
  std::vector<ShapeInputs> all{
      Trapezoid(3, 20, 2, 1),   Trapezoid(1, 1e9, 0, 0),      Trapezoid(1e9, 1, 0, 0), Trapezoid(2, 0, 3, 3),
      Trapezoid(2, 0, 0.01, 9), Trapezoid(1e-9, 1, 1e3, 1e3), Pipe(0.01, 5),           Pipe(5, 5)};
  for (const std::string_view type : ChannelTypes::All) all.push_back(Channel(type));
  for (ShapeInputs& inputs : all) {
    if (inputs.Depth) inputs.CriticalDepth = 0.8 * *inputs.Depth;
    for (const QSizeF size : {QSizeF(18, 13), QSizeF(22, 35), QSizeF(80, 20), QSizeF(60, 50)}) {
      const QRectF canvas(QPointF(), size * em);
      const ShapeGeometry shape = ShapeOf(inputs);
      const ShapeLayout layout = LayOutShape(shape, LongLabels(shape.Wall.has_value()), canvas, font);
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

class Drawn : public testing::Test {
 protected:
  ShapeLayout LayOut(const ShapeInputs& inputs, std::optional<ShapeScale> held = std::nullopt) const {
    const ShapeGeometry shape = ShapeOf(inputs);
    ShapeLabels labels = LongLabels(shape.Wall.has_value());
    if (shape.Surveyed) labels.BaseWidth = labels.LeftSlope = labels.RightSlope = {};
    return LayOutShape(shape, labels, canvas_, font_, held);
  }
  static std::vector<std::string> Names(const ShapeLayout& layout) {
    std::vector<std::string> names;
    for (const ShapeLabel& label : layout.Labels) names.push_back(label.Plain().toStdString());
    return names;
  }

  const QFontMetricsF font_{QGuiApplication::font()};
  const double em_ = font_.height();
  const QRectF canvas_{QPointF(), QSizeF(40, 30) * em_};
};

TEST_F(Drawn, SaysWhatIsExaggeratedInPlainDigits) {
  EXPECT_EQ(LayOut(Trapezoid(3, 5, 1, 1)).Note, QString());
  EXPECT_EQ(LayOut(Trapezoid(1, 55, 0, 0)).Note, QStringLiteral("Vertical scale \u00D7 5"));
  EXPECT_EQ(LayOut(Trapezoid(1000, 1, 0, 0)).Note, QStringLiteral("Horizontal scale \u00D7 100"));
}

TEST_F(Drawn, KeepsItsBedAndScaleAsTheDepthChanges) {
  const ShapeLayout before = LayOut(Trapezoid(3, 20, 2, 2));
  std::optional<ShapeScale> scale = before.Scale;
  int changes = 0;
  for (int step = 0; step < 50; ++step) {
    const double y = 3 + step / 100.0;
    const ShapeLayout now = LayOut(Trapezoid(y, 20, 2, 2));
    EXPECT_NEAR(now.Ground[2].y(), before.Ground[2].y(), 1e-9) << y;
    changes += std::exchange(scale, now.Scale) != now.Scale;
  }
  EXPECT_LE(changes, 1);
  // A number on its way to its last digit: the scale that is held stays while the shape fits.
  EXPECT_NE(LayOut(Trapezoid(0.5, 20, 2, 2)).Scale, before.Scale);
  EXPECT_EQ(LayOut(Trapezoid(0.5, 20, 2, 2), before.Scale).Scale, before.Scale);
  EXPECT_EQ(LayOut(Trapezoid(30, 20, 2, 2), before.Scale).Scale, LayOut(Trapezoid(30, 20, 2, 2)).Scale);
  EXPECT_FALSE(LayOut(Channel(ChannelTypes::Trapezoidal)).Scale);
}

TEST_F(Drawn, WhatNobodyTypedFadesOut) {
  // The bank above the water.
  const ShapeLayout channel = LayOut(Trapezoid(3, 20, 2, 2));
  EXPECT_EQ(channel.Known.finalStop().y(), channel.Surfaces[0].y1());
  EXPECT_EQ(channel.Known.stops().first().second.alpha(), 0);
  EXPECT_NEAR(channel.Known.start().y(), channel.Ground.boundingRect().top(), 1e-6);
  // The ground beside a survey.
  const ShapeLayout section = LayOut(Section(2, {{100, 4}, {120, 0}, {140, 3}}));
  EXPECT_EQ(section.Ground.size(), 3);
  EXPECT_LT(section.Earth.boundingRect().right() - section.Ground.last().x(), 2 * em_);
  EXPECT_LT(section.Ground.first().x() - section.Earth.boundingRect().left(), 2 * em_);
  for (const QGradientStop& stop : {section.Known.stops().first(), section.Known.stops().last()})
    EXPECT_EQ(stop.second.alpha(), 0);
}

TEST_F(Drawn, CriticalDepthIsALineFromBankToBankWithItsName) {
  struct Case {
    ShapeInputs Inputs;
    double Critical, Width;  ///< of the line
  };
  for (auto& [inputs, critical, width] : {Case{Trapezoid(3, 20, 2, 2), 2, 28},
                                          {Trapezoid(1, 20, 2, 2), 2, 28},
                                          {Pipe(1, 2), 1.3, 1.9078784},
                                          {Section(3, {{0, 4}, {8, 0}, {16, 4}}), 1, 4}}) {
    ShapeInputs with = inputs;
    with.CriticalDepth = critical;
    const ShapeLayout layout = LayOut(with);
    ASSERT_FALSE(layout.Critical.isEmpty());
    EXPECT_NEAR(layout.Critical[0].length(), width * layout.Scale->Across, 1e-4);
    EXPECT_NEAR(layout.Surfaces[0].y1() - layout.Critical[0].y1(),
                (critical - *inputs.Depth) * layout.Scale->Upwards, 1e-6);
    EXPECT_THAT(Names(layout), testing::Contains("yc = 1.234 m")) << inputs.Type;
  }
  ShapeInputs full = Pipe(1, 2);
  full.CriticalDepth = 2;
  EXPECT_TRUE(LayOut(full).Critical.isEmpty()) << "at the crown there is no surface";
}

TEST_F(Drawn, TheDepthIsNamedClearOfASteepBank) {
  ShapeInputs triangle = Trapezoid(2, 0, 0.5, 0);
  triangle.CriticalDepth = 3;
  const ShapeLayout layout = LayOut(triangle);
  const double wall = layout.Ground.last().x();
  for (const ShapeLabel& label : layout.Labels) {
    if (label.Symbol != u"y") continue;
    EXPECT_TRUE(label.Place.right() < wall || label.Place.left() > wall);
  }
}

TEST_F(Drawn, NamesThePartsOfASectionWithTheirN) {
  ShapeInputs section = Section(3, {{0, 4}, {10, 2}, {20, 0}, {30, 2}, {40, 4}});
  section.Parts = {{0, 10, "0.08", 0}, {10, 30, "0.035", 1}, {30, 40, "0.08", 0}};
  const ShapeLayout layout = LayOut(section);
  const auto names = Names(layout);
  EXPECT_EQ(std::ranges::count(names, "n = 0.08"), 2);
  EXPECT_EQ(std::ranges::count(names, "n = 0.035"), 1);
  ASSERT_EQ(layout.Parts.size(), 3);
  EXPECT_EQ(layout.Parts[1].Ground.size(), 3);
  EXPECT_NEAR(layout.Parts[1].Bar.width(), 20 * layout.Scale->Across, 1e-6);
  section.Parts = {{0, 40, "0.05", 0}};
  EXPECT_THAT(Names(LayOut(section)), testing::Contains("n = 0.05"));
  EXPECT_TRUE(LayOut(section).Parts.isEmpty()) << "one n needs no bar";
}

TEST_F(Drawn, APipesWaterLineAndMarkStayInside) {
  for (const double y : {0.01, 0.05, 0.3, 1.0, 1.7, 1.95, 1.99, 2.0}) {
    const ShapeLayout layout = LayOut(Pipe(y, 2));
    const double half = std::sqrt(std::max(0.0, y * (2 - y)));
    for (const QLineF& surface : layout.Surfaces)
      EXPECT_NEAR(surface.length(), 2 * half * layout.Scale->Across, 1e-6) << y;
    for (const QPointF& corner : layout.SurfaceMark)
      EXPECT_LT(QLineF(layout.Wall.center(), corner).length(), layout.Wall.width() / 2) << y;
    EXPECT_EQ(layout.SurfaceMark.isEmpty(), y > 1.9) << y;
  }
}

}  // namespace

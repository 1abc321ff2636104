// What is written in colours of our own can be read, on light, dark and high-contrast desktops.
#include "desktop/Appearance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

/// Relative luminance of a colour (sRGB), 0 to 1.
double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
  const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
  return (lighter + 0.05) / (darker + 0.05);
}

TEST(Contrast, IsThatOfTheEye) {
  EXPECT_NEAR(Contrast(Qt::white, Qt::black), 21, 1e-6);
  EXPECT_NEAR(Contrast(QColor(0x767676), Qt::white), 4.54, 0.005);
}

struct Scheme {
  const char* Name;
  QRgb Window, WindowText, Base, Text;
};

class Appearances : public testing::TestWithParam<Scheme> {
 protected:
  Appearances() {
    const Scheme& scheme = GetParam();
    palette_.setColor(QPalette::Window, scheme.Window);
    palette_.setColor(QPalette::WindowText, scheme.WindowText);
    palette_.setColor(QPalette::Base, scheme.Base);
    palette_.setColor(QPalette::Text, scheme.Text);
  }
  QColor Of(QPalette::ColorRole role) const { return palette_.color(QPalette::Active, role); }
  QPalette palette_;
};

TEST_P(Appearances, TextsCanBeRead) {
  using namespace Appearance;
  constexpr double Readable = 4.5;  // for texts of the usual size, by the guidelines for web contents (AA)
  for (const QColor& ground : {ResultGround(palette_), OffendingGround(palette_), OtherRow(palette_),
                               Water(palette_), Earth(palette_)}) {
    EXPECT_GE(Contrast(Of(QPalette::Text), ground), Readable) << ground.name().toStdString();
  }
  for (const QColor& ground : {Of(QPalette::Base), Earth(palette_)})
    EXPECT_GE(Contrast(Faint(palette_), ground), Readable) << ground.name().toStdString();
  for (const QColor& ground : {Of(QPalette::Window), Of(QPalette::Base)}) {
    for (const QColor& ink : {Good(palette_), Neutral(palette_), Bad(palette_)})
      EXPECT_GE(Contrast(ink, ground), Readable) << ink.name().toStdString();
  }
}

TEST_P(Appearances, LinesCanBeSeen) {
  using namespace Appearance;
  constexpr double Visible = 3;
  const QColor base = Of(QPalette::Base);
  EXPECT_GE(Contrast(WaterSurface(palette_), base), Visible);
  EXPECT_GE(Contrast(Faint(palette_), base), Visible);
}

INSTANTIATE_TEST_SUITE_P(Schemes, Appearances,
                         testing::Values(Scheme{"Light", 0xEFEFEF, 0x000000, 0xFFFFFF, 0x000000},
                                         Scheme{"Grey", 0xDFDFDF, 0x232629, 0xFCFCFC, 0x232629},
                                         Scheme{"Dark", 0x2A2E32, 0xFCFCFC, 0x1B1E20, 0xFCFCFC},
                                         Scheme{"DarkGrey", 0x353535, 0xFFFFFF, 0x2D2D2D, 0xFFFFFF},
                                         Scheme{"BlackOnWhite", 0xFFFFFF, 0x000000, 0xFFFFFF, 0x000000},
                                         Scheme{"WhiteOnBlack", 0x000000, 0xFFFFFF, 0x000000, 0xFFFFFF},
                                         Scheme{"YellowOnBlack", 0x000000, 0xFFFF00, 0x000000, 0xFFFF00}),
                         [](const auto& scheme) { return std::string(scheme.param.Name); });

}  // namespace

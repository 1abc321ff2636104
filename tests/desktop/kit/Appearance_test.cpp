// What is written in colours of our own can be read, on light, dark and high-contrast desktops.
#include "desktop/kit/Appearance.h"

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

TEST_P(Appearances, TextsCanBeReadAndLinesBeSeen) {
  using namespace Appearance;
  constexpr double Readable = 4.5, Visible = 3;  // by the guidelines for web contents (AA)
  const auto expect = [](double least, const QColor& ink, std::initializer_list<QColor> grounds) {
    for (const QColor& ground : grounds)
      EXPECT_GE(Contrast(ink, ground), least) << ink.name().toStdString() << ground.name().toStdString();
  };
  const QColor window = Of(QPalette::Window);
  const QColor base = Of(QPalette::Base);
  expect(Readable, Of(QPalette::Text),
         {ResultGround(palette_), OffendingGround(palette_), OtherRow(palette_), Water(palette_),
          Earth(palette_)});
  expect(Readable, Faint(palette_), {base, Earth(palette_)});
  for (const QColor& ink : {Good(palette_), Neutral(palette_), Bad(palette_)})
    expect(Readable, ink, {window, base});
  expect(Visible, WaterSurface(palette_), {base});
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

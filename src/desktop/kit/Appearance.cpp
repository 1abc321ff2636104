// See Appearance.h.
#include "desktop/kit/Appearance.h"

namespace Appearance {

namespace {

QColor Either(const QPalette& palette, QRgb light, QRgb dark) {
  return QColor(IsDark(palette) ? dark : light);
}

}  // namespace

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Active, QPalette::Window).lightness() <
         palette.color(QPalette::Active, QPalette::WindowText).lightness();
}

QPalette Paper() {
  return QPalette(QColor(Qt::white));
}

QColor Mixed(const QColor& base, const QColor& tint, double share) {
  const auto mix = [share](int from, int to) { return static_cast<int>(from + share * (to - from)); };
  return {mix(base.red(), tint.red()), mix(base.green(), tint.green()), mix(base.blue(), tint.blue())};
}

QColor ResultGround(const QPalette& palette) {
  return Mixed(palette.color(QPalette::Active, QPalette::Base), QColor(0xFF, 0xD0, 0x30),
               IsDark(palette) ? 0.12 : 0.15);
}

QColor OffendingGround(const QPalette& palette) {
  return Mixed(palette.color(QPalette::Active, QPalette::Base), QColor(0xF0, 0x30, 0x30),
               IsDark(palette) ? 0.40 : 0.24);
}

QColor Good(const QPalette& palette) {
  return Either(palette, 0x1A6E34, 0x6FCF8C);
}

QColor Neutral(const QPalette& palette) {
  return Either(palette, 0x235F98, 0x7DB8EE);
}

QColor Bad(const QPalette& palette) {
  return Either(palette, 0xB3261E, 0xFF9A8F);
}

QColor OtherRow(const QPalette& palette) {
  return Mixed(palette.color(QPalette::Active, QPalette::Base),
               palette.color(QPalette::Active, QPalette::Text), 0.04);
}

bool NeedsOutline(const QPalette& palette) {
  return palette.color(QPalette::Active, QPalette::Window) == palette.color(QPalette::Active, QPalette::Base);
}

QColor Line(const QPalette& palette) {
  return Mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.25);
}

QColor Faint(const QPalette& palette) {
  return Mixed(palette.color(QPalette::Active, QPalette::Base),
               palette.color(QPalette::Active, QPalette::Text), 0.7);
}

QColor Water(const QPalette& palette) {
  return Either(palette, 0xCFE6F8, 0x1F4A6B);
}

QColor WaterSurface(const QPalette& palette) {
  return Either(palette, 0x2A7FC0, 0x69B4EE);
}

QColor Earth(const QPalette& palette) {
  return Mixed(palette.color(QPalette::Active, QPalette::Base), QColor(0x96, 0x6E, 0x3C),
               IsDark(palette) ? 0.22 : 0.16);
}

QColor Subsection(const QPalette& palette, int number) {
  constexpr QRgb Tints[] = {0xC77D0A, 0x2E8B57, 0x8E5BB5, 0xC44E52, 0x5B7083, 0x9A8B12};
  constexpr int Count = static_cast<int>(std::size(Tints));
  return Mixed(palette.color(QPalette::Active, QPalette::Base), QColor(Tints[number % Count]),
               IsDark(palette) ? 0.95 : 0.65);
}

}  // namespace Appearance

// See ChartTicks.h.
#include "desktop/chart/ChartTicks.h"

#include <algorithm>
#include <cmath>

#include "app/NumberDisplay.h"

namespace {

constexpr double Tolerance = 1e-9;  // of a step
constexpr int EnoughTicks = 3;      // to read the scale of an axis

int Exponent(double x) {
  return static_cast<int>(std::floor(std::log10(std::fabs(x)) + Tolerance));
}

std::string Fixed(double x, int decimals) {
  return FixedFormat(x, 1, std::clamp(decimals, 0, 15)).Text();
}

/// The digits of x down to those of `step`; with an exponent where `largest`, the largest number of the axis,
/// is too long or too small to be read otherwise.
std::string Spelled(double x, double step, double largest) {
  const bool plain = largest >= 1e-4 && largest < 1e7;
  if (plain || x == 0) return Fixed(x, x == 0 && !plain ? 0 : -Exponent(step));
  const int exponent = Exponent(x);
  return Fixed(x / std::pow(10.0, exponent), exponent - Exponent(step)) + "e" + std::to_string(exponent);
}

/// 1, 2 or 5 times a power of ten, `least` or the next greater.
double RoundStep(double least) {
  const double power = std::pow(10.0, Exponent(least));
  for (const double digit : {1.0, 2.0, 5.0}) {
    if (digit * power >= least * (1 - Tolerance)) return digit * power;
  }
  return 10 * power;
}

bool Inside(double x, double lower, double upper) {
  return x >= lower * (1 - Tolerance) && x <= upper * (1 + Tolerance);
}

void Add(ChartTicks& ticks, double x) {
  ticks.At.push_back(x);
  ticks.Labels.push_back(Spelled(x, x, x));
}

/// Every power of ten, or every second, third... when there are too many.
ChartTicks PowersOfTen(double lower, double upper, int most) {
  const int first = Exponent(lower);
  const int last = Exponent(upper);
  const int stride = std::max(1, (last - first + most) / most);
  ChartTicks ticks;
  for (int exponent = first; exponent <= last; ++exponent) {
    const double power = std::pow(10.0, exponent);
    if (exponent % stride == 0 && Inside(power, lower, upper)) Add(ticks, power);
    for (int digit = 2; stride == 1 && digit <= 9; ++digit) {
      if (Inside(digit * power, lower, upper)) ticks.Between.push_back(digit * power);
    }
  }
  return ticks;
}

/// 1, 2 and 5 times the powers of ten.
ChartTicks RoundNumbers(double lower, double upper) {
  ChartTicks ticks;
  for (int exponent = Exponent(lower); exponent <= Exponent(upper); ++exponent) {
    for (int digit = 1; digit <= 9; ++digit) {
      const double x = digit * std::pow(10.0, exponent);
      if (!Inside(x, lower, upper)) continue;
      if (digit == 1 || digit == 2 || digit == 5) {
        Add(ticks, x);
      } else {
        ticks.Between.push_back(x);
      }
    }
  }
  return ticks;
}

}  // namespace

ChartTicks LinearTicks(double lower, double upper, int most) {
  ChartTicks ticks;
  const double least = (upper - lower) / std::max(most, 1);
  if (!(least > 0) || !std::isfinite(least)) return ticks;
  const double step = RoundStep(least);
  const double largest = std::max(std::fabs(lower), std::fabs(upper));
  const double first = std::ceil(lower / step - Tolerance);
  const double last = std::floor(upper / step + Tolerance);
  for (int i = 0; i <= most && first + i <= last; ++i) {
    const double x = (first + i) * step;
    ticks.At.push_back(x);
    ticks.Labels.push_back(Spelled(x, step, largest));
  }
  return ticks;
}

ChartTicks LogarithmicTicks(double lower, double upper, int most) {
  if (!(lower > 0) || !(upper > lower) || !std::isfinite(upper)) return {};
  ChartTicks powers = PowersOfTen(lower, upper, std::max(most, 1));
  if (powers.At.size() >= EnoughTicks) return powers;
  ChartTicks round = RoundNumbers(lower, upper);
  if (round.At.size() >= EnoughTicks && round.At.size() <= static_cast<std::size_t>(most)) return round;
  return powers.At.size() > 1 ? powers : LinearTicks(lower, upper, most);
}

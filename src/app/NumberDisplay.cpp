// See NumberDisplay.h.
#include "app/NumberDisplay.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "app/Declarations.h"
#include "app/Units.h"
#include "engine/ChannelState.h"
#include "engine/EngineFault.h"
#include "engine/NumberText.h"

namespace {

constexpr int SeenDigits = 15;  // of a double, as the user sees it in decimals

/// The digits of |x| in units of 10^-decimals, halves rounded away from zero, at least one before the point.
std::string ScaledDigits(double x, int decimals) {
  std::array<char, 32> text{};  // d.dddddddddddddde+xx
  const char* const end = std::to_chars(text.data(), text.data() + text.size(), std::fabs(x),
                                        std::chars_format::scientific, SeenDigits - 1)
                              .ptr;
  text[1] = text[0];  // the digits without their point
  const char* const seen = text.data() + 1;
  const char* exponentText = seen + SeenDigits + 1;
  if (*exponentText == '+') ++exponentText;
  int exponent = 0;
  std::from_chars(exponentText, end, exponent);

  const int wanted = decimals + 1;
  const int kept = exponent + 1 + decimals;
  std::string digits(static_cast<std::size_t>(std::max(kept, wanted)) + 1, '0');  // one for a carry
  const int copied = std::clamp(kept, 0, SeenDigits);
  std::copy_n(seen, copied, digits.end() - std::max(kept, 0));
  if (kept >= 0 && kept < SeenDigits && seen[kept] >= '5') {
    auto place = digits.rbegin();
    while (*place == '9') *place++ = '0';
    ++*place;
  }
  // In front stand the zeros that a carry did not use up.
  const std::size_t spare =
      std::min(digits.find_first_not_of('0'), digits.size() - static_cast<std::size_t>(wanted));
  return digits.erase(0, spare);
}

std::string FixedText(double x, int decimals) {
  const NumberLocale& locale = CurrentNumberLocale();
  const std::string digits = ScaledDigits(x, decimals);
  const std::size_t point = digits.size() - static_cast<std::size_t>(decimals);
  std::string text;
  const bool shownAsZero = digits.find_first_not_of('0') == std::string::npos;
  if (x < 0 && !shownAsZero) text += '-';
  const std::size_t firstGroup = (point - 1) % 3 + 1;
  text.append(digits, 0, firstGroup);
  for (std::size_t group = firstGroup; group < point; group += 3) {
    text += locale.GroupSeparator;
    text.append(digits, group, 3);
  }
  if (decimals > 0) {
    text += locale.DecimalSign;
    text.append(digits, point);
  }
  return text;
}

}  // namespace

EngineValue SigFormat(const EngineValue& value, double factor, int sigDigits) {
  if (!value.IsNumeric()) return value;
  const double x = Finite(factor * value.Number());
  const int e = x == 0 ? 0 : static_cast<int>(std::floor(std::log(std::fabs(x)) / std::log(10.0)));
  const double step = std::pow(10.0, e - sigDigits + 1);
  if (step == 0) return PlainNumberInLocale(x);
  const int decimals = sigDigits - e - 1;
  return FixedText(Finite(std::nearbyint(x / step) * step), decimals < 0 ? 0 : decimals);
}

EngineValue FixedFormat(const EngineValue& value, double factor, int decimals) {
  if (!value.IsNumeric()) return value;
  return FixedText(Finite(factor * value.Number()), decimals);
}

std::string ShownNumber(const EngineValue& value, int quantity, bool fixedDecimals) {
  const double factor = 1 / UnitFactor(ChannelState.UnitsEorM, quantity);
  return (fixedDecimals ? FixedFormat(value, factor, Declarations::EngDigs)
                        : SigFormat(value, factor, Declarations::SigDigs))
      .Text();
}

std::string WithUnit(const std::string& number, int quantity) {
  return number + " " + UnitLabel(ChannelState.UnitsEorM, quantity);
}

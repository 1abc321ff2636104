// See NumberDisplay.h.
#include "app/NumberDisplay.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "engine/EngineFault.h"
#include "engine/NumberText.h"

namespace {

/// The digits of |x| as a decimal of 15 significant digits: Digits[0] stands before the decimal point when
/// Exponent is 0.
struct Decimal {
  std::string Digits;
  int Exponent = 0;
};

Decimal FifteenDigits(double x) {
  std::array<char, 32> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(x),
                                 std::chars_format::scientific, 14)
                       .ptr;
  const std::string text(buffer.data(), end);
  const std::size_t e = text.find('e');
  Decimal decimal{text.substr(0, 1) + text.substr(2, e - 2), 0};
  const char* exponent = text.data() + e + 1;
  if (*exponent == '+') ++exponent;
  std::from_chars(exponent, text.data() + text.size(), decimal.Exponent);
  return decimal;
}

/// The digits of |x| in units of 10^-decimals, halves rounded away from zero, at least one before the point.
std::string ScaledDigits(double x, int decimals) {
  const Decimal decimal = FifteenDigits(x);
  const int kept = decimal.Exponent + 1 + decimals;
  std::string digits;
  if (kept >= 0) digits = decimal.Digits.substr(0, static_cast<std::size_t>(kept));
  if (kept > static_cast<int>(digits.size()))
    digits.append(static_cast<std::size_t>(kept) - digits.size(), '0');
  const bool up = kept >= 0 && kept < static_cast<int>(decimal.Digits.size()) &&
                  decimal.Digits[static_cast<std::size_t>(kept)] >= '5';
  if (up) {
    std::size_t place = digits.size();
    while (place > 0 && digits[place - 1] == '9') digits[--place] = '0';
    if (place > 0) {
      ++digits[place - 1];
    } else {
      digits.insert(0, 1, '1');
    }
  }
  const auto wanted = static_cast<std::size_t>(decimals) + 1;
  if (digits.size() < wanted) digits.insert(0, wanted - digits.size(), '0');
  return digits;
}

std::string Grouped(const std::string& whole) {
  std::string grouped;
  for (std::size_t i = 0; i < whole.size(); ++i) {
    if (i > 0 && (whole.size() - i) % 3 == 0) grouped += CurrentNumberLocale().GroupSeparator;
    grouped += whole[i];
  }
  return grouped;
}

std::string FixedText(double x, int decimals) {
  const std::string digits = ScaledDigits(x, decimals);
  const std::size_t point = digits.size() - static_cast<std::size_t>(decimals);
  std::string text = Grouped(digits.substr(0, point));
  if (decimals > 0) text += CurrentNumberLocale().DecimalSign + digits.substr(point);
  const bool shownAsZero = digits.find_first_not_of('0') == std::string::npos;
  return x < 0 && !shownAsZero ? "-" + text : text;
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

// See TypedUnits.h.
#include "app/main/TypedUnits.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <span>

#include "app/Units.h"
#include "engine/NumberText.h"

namespace {

using TypedUnits::Amount;
using TypedUnits::Kind;

struct UnitRow {
  std::string_view Symbol;  ///< a small letter may also be typed as a capital one
  double Size = 1;          ///< of the unit, in the unit that the system shows this kind in
  Kind Of = Kind::Plain;
  int System = Units::English;
  const char* Which = "";
};

constexpr double Gallon = 231.0 / 1728;  // ft^3: a US liquid gallon is 231 cubic inches
constexpr double Day = 86400;            // s

constexpr UnitRow UnitRows[] = {
    {"cfs", 1, Kind::Flow},
    {"ft3/s", 1, Kind::Flow},
    {"ft^3/s", 1, Kind::Flow},
    {"ft³/s", 1, Kind::Flow},
    {"m3/s", 1, Kind::Flow, Units::Metric},
    {"m^3/s", 1, Kind::Flow, Units::Metric},
    {"m³/s", 1, Kind::Flow, Units::Metric},
    {"l/s", 1.0 / 1000, Kind::Flow, Units::Metric},
    {"Ml/d", 1000 / Day, Kind::Flow, Units::Metric},  // "ml" would be a millilitre
    {"gpm", Gallon / 60, Kind::Flow, Units::English, "US gallons"},
    {"mgd", 1e6 * Gallon / Day, Kind::Flow, Units::English, "US gallons"},
    {"m", 1, Kind::Length, Units::Metric},
    {"cm", 1.0 / 100, Kind::Length, Units::Metric},
    {"mm", 1.0 / 1000, Kind::Length, Units::Metric},
    {"yd", 3, Kind::Length},
    {"ft", 1, Kind::Length},
    {"'", 1, Kind::Length},
    {"’", 1, Kind::Length},
    {"′", 1, Kind::Length},
    {"in", 1.0 / 12, Kind::Length},
    {"\"", 1.0 / 12, Kind::Length},
    {"”", 1.0 / 12, Kind::Length},
    {"″", 1.0 / 12, Kind::Length},
    {"%", 1.0 / 100, Kind::Slope},
    {"‰", 1.0 / 1000, Kind::Slope},
    {"ft/ft", 1, Kind::Slope},
    {"m/m", 1, Kind::Slope},
};

/// A ratio of which one part is 1; the amount is the other part, or one divided by it.
struct RatioRow {
  std::string_view Left, Right;  ///< letters behind the numbers
  Kind Of = Kind::Plain;
  bool LeftIsOne = true;
  bool Divides = false;
};

constexpr RatioRow Ratios[] = {
    {"", "", Kind::Slope, true, true},
    {"", "", Kind::SideSlope, false, false},
    {"v", "h", Kind::SideSlope, true, false},
    {"h", "v", Kind::SideSlope, false, false},
};

int QuantityOf(Kind kind) {
  switch (kind) {
    case Kind::Flow:
      return Units::Flow;
    case Kind::Length:
      return Units::Length;
    case Kind::Slope:
      return Units::Slope;
    default:
      return Units::Dimensionless;
  }
}

double FactorOf(const UnitRow& unit) {
  return unit.Size * UnitFactor(unit.System, QuantityOf(unit.Of));
}

bool IsTypedAs(char typed, char symbol) {
  const bool small = symbol >= 'a' && symbol <= 'z';
  return typed == symbol || (small && typed == symbol - 'a' + 'A');
}

/// Takes the symbol and the blanks behind it from the front of the text.
bool Take(std::string_view& text, std::string_view symbol) {
  if (text.size() < symbol.size() || !std::equal(symbol.begin(), symbol.end(), text.begin(),
                                                 [](char s, char typed) { return IsTypedAs(typed, s); })) {
    return false;
  }
  text = WithoutLeadingBlanks(text.substr(symbol.size()));
  return true;
}

/// Takes a number likewise.
std::optional<double> TakeNumber(std::string_view& text) {
  const std::size_t length = LeadingNumberLength(text);
  const std::optional<double> number = NumericValue(text.substr(0, length));
  text = WithoutLeadingBlanks(text.substr(length));
  return number;
}

/// A number and a unit smaller than `below`, and what follows in a still smaller one.
std::optional<Amount> ReadUnits(std::string_view text, Kind kind, double below) {
  const std::optional<double> number = TakeNumber(text);
  if (!number) return std::nullopt;
  for (const UnitRow& unit : UnitRows) {
    std::string_view rest = text;
    if (unit.Of != kind || !(FactorOf(unit) < below) || !Take(rest, unit.Symbol)) continue;
    const double value = *number * FactorOf(unit);
    if (rest.empty()) return Amount{value, unit.Which};
    if (kind != Kind::Length) continue;
    if (rest.front() == '-') rest = WithoutLeadingBlanks(rest.substr(1));  // 4'-6"
    if (rest.starts_with('-') || rest.starts_with('+')) continue;
    if (const auto part = ReadUnits(rest, kind, FactorOf(unit)))
      return Amount{value + std::copysign(part->Value, *number)};
  }
  return std::nullopt;
}

std::optional<Amount> ReadRatio(std::string_view text, const RatioRow& row) {
  const auto left = TakeNumber(text);
  if (!left || !Take(text, row.Left) || !Take(text, ":")) return std::nullopt;
  const auto right = TakeNumber(text);
  if (!right || !Take(text, row.Right) || !text.empty()) return std::nullopt;
  if ((row.LeftIsOne ? *left : *right) != 1) return std::nullopt;
  const double other = row.LeftIsOne ? *right : *left;
  return Amount{row.Divides ? 1 / other : other};
}

bool IsUnit(std::string_view text, Kind kind) {
  return std::ranges::any_of(UnitRows, [=](const UnitRow& unit) {
    std::string_view rest = text;
    return unit.Of == kind && Take(rest, unit.Symbol) && rest.empty();
  });
}

/// A number of this many units of its last decimal.
std::string Spelled(std::int64_t units, std::size_t decimals) {
  std::string digits = std::to_string(units < 0 ? -units : units);
  if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), '0');
  if (decimals > 0) digits.insert(digits.size() - decimals, CurrentNumberLocale().DecimalSign);
  return units < 0 ? "-" + digits : digits;
}

}  // namespace

std::optional<Amount> TypedUnits::Read(std::string_view text, Kind kind) {
  std::optional<Amount> amount = ReadUnits(text, kind, std::numeric_limits<double>::infinity());
  for (const RatioRow& row : Ratios) {
    if (!amount && row.Of == kind) amount = ReadRatio(text, row);
  }
  return amount && std::isfinite(amount->Value) ? amount : std::nullopt;
}

std::string TypedUnits::SevenDigits(double x) {
  if (!std::isfinite(x)) return PlainNumberInLocale(x);
  constexpr int seen = 15;  // digits of a double that the user sees in decimals
  constexpr int kept = 7;
  std::array<char, 32> text{};  // d.dddddddddddddde+xx
  char* const end = std::to_chars(text.data(), text.data() + text.size(), std::fabs(x),
                                  std::chars_format::scientific, seen - 1)
                        .ptr;
  text[1] = text[0];  // the digits without their point
  const char* const first = text.data() + 1;
  std::int64_t digits = 0;
  std::from_chars(first, first + kept, digits);
  if (first[kept] >= '5') ++digits;
  int exponent = 0;
  const char* const exponentText = first + seen + 1;
  std::from_chars(exponentText + (*exponentText == '+' ? 1 : 0), end, exponent);
  const std::string rounded = std::to_string(digits) + "e" + std::to_string(exponent - kept + 1);
  double value = x;
  std::from_chars(rounded.data(), rounded.data() + rounded.size(), value);
  return PlainNumberInLocale(std::copysign(value, x));
}

std::optional<std::string> TypedUnits::Nudged(std::string_view text, Kind kind, int by) {
  constexpr std::size_t mostDigits = 18;
  text = WithoutLeadingBlanks(text);
  const std::string_view number = text.substr(0, LeadingNumberLength(text));
  const std::string_view rest = text.substr(number.size());
  const std::string_view unit = WithoutLeadingBlanks(rest);
  if (number.empty() || !(unit.empty() || IsUnit(unit, kind))) return std::nullopt;
  const std::string_view mantissa = number.substr(0, number.find_first_of("eE"));
  const std::size_t point = mantissa.find(CurrentNumberLocale().DecimalSign);
  std::string digits;
  std::size_t decimals = 0;
  for (std::size_t i = 0; i < mantissa.size(); ++i) {
    if (mantissa[i] < '0' || mantissa[i] > '9') continue;
    digits += mantissa[i];
    if (i > point) ++decimals;
  }
  if (digits.size() > mostDigits) return std::nullopt;
  std::int64_t units = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), units);
  if (mantissa.starts_with('-')) units = -units;
  return Spelled(units + by, decimals) + std::string(number.substr(mantissa.size())) + std::string(rest);
}

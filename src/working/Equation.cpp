// See Equation.h.
#include "working/Equation.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>
#include <vector>

#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "engine/ChannelState.h"
#include "engine/NumberText.h"

namespace {

constexpr int Digits = 5;
constexpr int MostDigits = 15;

/// The symbols in braces, each once, in the order in which they first stand.
std::vector<std::string_view> SymbolsIn(std::string_view numbers) {
  std::vector<std::string_view> symbols;
  for (std::size_t open = numbers.find('{'); open != std::string_view::npos;
       open = numbers.find('{', open + 1)) {
    const std::string_view symbol = numbers.substr(open + 1, numbers.find('}', open) - open - 1);
    if (std::ranges::find(symbols, symbol) == symbols.end()) symbols.push_back(symbol);
  }
  return symbols;
}

std::string Replaced(std::string text, const std::string& what, const std::string& with) {
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
  return text;
}

double Read(const std::string& text) {
  return NumericValue(text).value_or(0);
}

/// One unit of the last digit of a number with five digits.
double LastPlace(double x) {
  return x == 0 ? 0 : std::pow(10.0, std::floor(std::log10(std::abs(x))) - Digits + 1);
}

}  // namespace

std::string UnitText(UnitKind unit) {
  const bool metric = ChannelState.UnitsEorM == Units::Metric;
  const auto label = [](int quantity) { return UnitLabel(ChannelState.UnitsEorM, quantity); };
  switch (unit) {
    case UnitKind::None:
      return "";
    case UnitKind::Length:
      return label(Units::Length);
    case UnitKind::Area:
      return label(Units::Area);
    case UnitKind::Flow:
      return label(Units::Flow);
    case UnitKind::Velocity:
      return label(Units::Velocity);
    case UnitKind::Slope:
      return label(Units::Slope);
    case UnitKind::Angle:
      return "rad";
    case UnitKind::SectionFactor:
      return metric ? "m^(5/2)" : "ft^(5/2)";
    case UnitKind::Shear:
      return metric ? "N/m^2" : "lb/ft^2";
  }
  return "";
}

std::string WithDigits(double x, int digits) {
  const double size = std::abs(x);
  if (size == 0 || (size >= 1e-7 && size < 1e15)) return SigFormat(x, 1, digits).Text();
  std::array<char, 40> text{};
  double rounded = x;
  const char* const end =
      std::to_chars(text.data(), text.data() + text.size(), x, std::chars_format::scientific, digits - 1).ptr;
  std::from_chars(text.data(), end, rounded);
  return PlainNumberInLocale(rounded);
}

void AddEquation(WorkingLines& lines, const Equation& equation, const ShownNumbers& numbers,
                 const std::string& index) {
  const auto result = numbers.find(equation.Symbol);
  if (result == numbers.end()) return;
  const std::vector<std::string_view> symbols = SymbolsIn(equation.Numbers);
  if (!std::ranges::all_of(symbols, [&](std::string_view symbol) { return numbers.contains(symbol); }))
    return;

  const std::string value = WithDigits(result->second.Value, Digits);
  std::vector<std::string> texts(symbols.size());
  std::vector<double> read(symbols.size());
  for (int digits = Digits; digits <= MostDigits && !symbols.empty(); ++digits) {
    for (std::size_t i = 0; i < symbols.size(); ++i) {
      const Shown& number = numbers.find(symbols[i])->second;
      texts[i] = number.Text.empty() ? WithDigits(number.Value, digits) : number.Text;
      read[i] = Read(texts[i]);
    }
    if (std::abs(equation.Value(read) - Read(value)) <= LastPlace(result->second.Value)) break;
  }

  std::string filled = equation.Numbers;
  for (std::size_t i = 0; i < symbols.size(); ++i) {
    filled = Replaced(filled, "{" + std::string(symbols[i]) + "}", texts[i]);
  }
  const std::string unit = UnitText(equation.Unit);
  WorkingLine line{WorkingLine::Kind::Result, {equation.Symbol + index}};
  if (*equation.Formula != '\0') line.Parts.push_back(Replaced(equation.Formula, "*", index));
  if (!filled.empty()) line.Parts.push_back(filled);
  line.Parts.push_back(unit.empty() ? value : value + " " + unit);
  lines.push_back(std::move(line));
}

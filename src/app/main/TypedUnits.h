// Numbers as people write them: with a unit, or as a ratio.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace TypedUnits {

/// What kind of box a number is typed in, which decides the units that it understands.
enum class Kind { Plain, Flow, Length, Slope, SideSlope };

struct Amount {
  double Value = 0;        ///< in ft^3/s or ft; slopes as a ratio, side slopes as horizontal per vertical
  const char* Which = "";  ///< which of several units of this name; empty where there is one
};

/// The amount that a text stands for: a number and a unit of this kind ("35 L/s"), lengths also with a part
/// in a smaller unit (4' 6"), slopes also as 1:n, side slopes as n:1, 1V:nH and nH:1V. Nothing for any other
/// text, a number without a unit among them, and for an amount that no double holds.
std::optional<Amount> Read(std::string_view text, Kind kind);

/// The number with seven significant digits, halves rounded away from zero, and no trailing zeros, in the
/// locale's spelling without grouping.
std::string SevenDigits(double x);

/// The text with the last digit of its number raised by `by`, 1 or -1: "0.015" becomes "0.016", "1.9 m"
/// "2.0 m". Nothing where it is neither a number nor one with a unit, or has more digits than can be counted.
std::optional<std::string> Nudged(std::string_view text, Kind kind, int by);

}  // namespace TypedUnits

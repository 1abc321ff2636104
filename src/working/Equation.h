// One line of a working: symbol = formula = numbers put in = value unit.
#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>

#include "working/WorkingLine.h"

/// A number that stands in a line, in the unit it is shown in.
struct Shown {
  double Value;
  std::string Text = {};  ///< as typed, or with fixed decimals; empty: with the digits that the line needs
};

/// By symbol.
using ShownNumbers = std::map<std::string, Shown, std::less<>>;

enum class UnitKind { None, Length, Area, Flow, Velocity, Slope, Angle, SectionFactor, Shear };

struct Equation {
  const char* Symbol;   ///< of the value; in the formula "*" stands for an index, as that of critical flow
  const char* Formula;  ///< in symbols
  const char* Numbers;  ///< the formula with each "{symbol}" to be replaced by its number
  double (*Value)(std::span<const double>);  ///< of the numbers in the order in which they first stand
  UnitKind Unit;
};

/// Unit of a kind in the unit system in force.
std::string UnitText(UnitKind unit);

/// A number with so many significant digits; far from 1 with an exponent.
std::string WithDigits(double x, int digits);

/// Adds the line to lines when all its numbers are known. The value is that of numbers[Symbol], with five
/// significant digits; those put in have as many more as it takes for a reader who computes with them to
/// agree. The index ("_c") is added to the symbol.
void AddEquation(WorkingLines& lines, const Equation& equation, const ShownNumbers& numbers,
                 const std::string& index = "");

// A surveyed section between its file and the point table: what a file holds, before and while it is
// mended.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "engine/NumberText.h"

namespace Survey {

/// A number of a file, and its digits as they stand there; the digits are empty once the value has changed.
struct Number {
  double Value = 0;
  std::string_view Typed;
};

/// A point of the ground, and the n that begins there. Lengths are in the unit of the file until Mend
/// converts them.
struct Point {
  Number X, Z;
  std::optional<Number> N;
  std::size_t Line = 0;  ///< of the file; 0 for a point that is in no file
};

/// An n that begins at a station which need not be a point's.
struct Break {
  double Station;
  Number N;
  std::size_t Line;  ///< of the file
};

/// A length of one unit in feet, and the name by which the user knows it.
struct LengthUnit {
  std::string Name;
  double Feet;
};
LengthUnit Feet();
LengthUnit Metres();

struct Section {
  std::string Name;
  NumberLocale Spelling;  ///< of Number::Typed
  std::vector<Point> Points;
  std::vector<Break> Breaks;               ///< ascending
  std::vector<double> Banks;               ///< stations of the bank tops that the file names
  std::optional<LengthUnit> XUnit, ZUnit;  ///< as the file names them
  std::size_t StationColumn = 0;           ///< of the file, from 1; 0 where it has none
  bool AsksUnit = false;                   ///< the format has a unit of its own but does not say which
  double WidthFactor = 1;                  ///< by which the file wants the stations multiplied
  double Offset = 0;                       ///< that the file wants added to the elevations
  std::vector<std::string> Notes;          ///< what was left out of it, in sentences
};

/// The user has cancelled.
struct Cancelled {};

/// Called now and then with the share that is done; throws Cancelled to end the work.
using Watch = std::function<void(double share)>;
/// Rows from one call to the next.
inline constexpr std::size_t WatchEvery = 1 << 14;

/// For a part of the work, which takes the whole from one share to another.
Watch PartOf(const Watch& watch, double from, double to);

/// std::runtime_error with the message "Line 3, column 2: why" (without the column where it is 0).
[[noreturn]] void Refuse(std::size_t line, std::size_t column, const std::string& why);

std::string InQuotes(std::string_view text);

/// "1 thing", "2 things".
std::string Counted(std::size_t count, const std::string& thing);

}  // namespace Survey

// Unit captions and conversion factors: the engine computes in feet and seconds, the user reads either
// system.
#pragma once

#include <optional>
#include <string>

namespace Units {

/// Unit systems, as the problem record holds them.
inline constexpr int English = 0;
inline constexpr int Metric = 1;
inline constexpr int Last = Metric;

/// Rows of the unit table.
enum Quantity { Length = 1, Flow, Slope, Diameter, Area, Velocity, BaseWidth, Dimensionless };

}  // namespace Units

/// Caption of a quantity in a unit system, for example "m^3/s"; empty for a dimensionless one.
/// std::out_of_range outside systems 0 to 2 (2 holds nothing) and rows 0 to 8 (0 holds nothing).
std::string UnitLabel(int units, int row);

/// A text with the exponents of its units raised: "m³/s" for "m^3/s".
std::string WithRaisedExponents(std::string text);

/// Engine units (feet, seconds) in one displayed unit: engine value = displayed value x factor.
/// std::out_of_range as above.
double UnitFactor(int units, int row);

/// Decimals of a typed number that is rewritten in this unit system; nothing for a quantity that the user
/// never types or that is the same number in every system. std::out_of_range as above.
std::optional<int> TypedDecimals(int units, int row);

// How the numbers of a survey are spelled, and what its head says of a column.
#pragma once

#include "section/Sheet.h"

namespace Survey {

enum class Role { Ignored, Station, Elevation, ManningN };

/// Which column is what, and the unit that the head names for it.
struct Columns {
  std::vector<Role> Roles;
  std::vector<std::optional<LengthUnit>> Units;
  bool operator==(const Columns& other) const { return Roles == other.Roles; }

  /// The column with the role, if there is one.
  std::optional<std::size_t> Find(Role role) const;
};

/// The first three columns of numbers as station, elevation and n; none when there are more than three.
Columns ColumnsByPlace(const Sheet& sheet);

/// As the head names them. A role that two columns claim goes to neither. Without a head by place.
Columns ColumnsByHead(const Sheet& sheet);

/// True for the name or the abbreviation of a unit of length, in brackets or not.
bool IsUnitName(std::string_view text);

/// What a caption names.
Role RoleOf(std::string_view caption);
std::optional<LengthUnit> UnitOf(std::string_view caption);

/// Numbers with a decimal point and with a decimal comma; the other of the two, or a space, may separate
/// groups.
extern const NumberLocale DecimalPoint;
extern const NumberLocale DecimalComma;

bool IsNumberOfSomeSign(std::string_view field);

/// The value of a field under a decimal sign.
std::optional<double> ValueOf(std::string_view field, const NumberLocale& spelling);

/// True for "12.500" where the point is the decimal sign: a number whose one sign has three digits behind it,
/// as a sign between thousands has.
bool MayBeThousands(std::string_view field, const NumberLocale& spelling);

/// The decimal sign of a sheet as its stations, elevations and n show it together. Where each number has one
/// sign that may also separate thousands ("12.500"), the user's own decimal sign decides, and `Doubtful`
/// holds the first of them if that makes it a thousand: only the user can decide.
struct Sign {
  NumberLocale Spelling;
  std::string Doubtful;
};
Sign SignOf(const Sheet& sheet, const Columns& columns);

/// The points of a sheet. std::runtime_error naming line, column and reason where a field is no number or is
/// missing, and where no column is the station or the elevation.
Section SectionOf(const Sheet& sheet, const Columns& columns, const NumberLocale& spelling,
                  const Watch& watch);

/// The number in the user's spelling: digit for digit as typed, or the value when it has changed.
std::string SpelledForUser(const Number& number, const NumberLocale& spelling);

}  // namespace Survey

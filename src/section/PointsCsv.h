// The points of a surveyed section as comma-separated values, the text that spreadsheets and survey programs
// exchange.
#pragma once

#include <string>
#include <string_view>

#include "section/IrregTable.h"

namespace PointsCsv {

/// The points of such a text, spelled for the user's locale: a line each of station, elevation and, or not,
/// n, behind a line of heads or none. TAB, ";" or "," separates the fields and "." or "," is the decimal
/// sign, as the text as a whole shows; the other of the two, or a space, may separate groups of three.
/// std::runtime_error with a message for the user, naming the line, where a line is no point, where a number
/// can be read in two ways, and where there are more points than the table holds.
IrregTable::Table Parse(std::string_view bytes);

/// The points of an accepted table as such a text, digit for digit, with heads. The decimal sign is that of
/// the user's locale; beside a decimal comma ";" separates the fields.
std::string Format(const IrregTable::Table& table);

}  // namespace PointsCsv

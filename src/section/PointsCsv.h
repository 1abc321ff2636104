// The points of a surveyed section as comma-separated values, the text that spreadsheets and survey programs
// exchange.
#pragma once

#include <string>

#include "section/IrregTable.h"

namespace PointsCsv {

/// The points of an accepted table as such a text, digit for digit: a comment line with the remark, heads
/// that name the unit of length, and a line for each point. The decimal sign is that of the user's locale;
/// beside a decimal comma ";" separates the fields.
std::string Format(const IrregTable::Table& table, const std::string& unit, const std::string& remark);

}  // namespace PointsCsv

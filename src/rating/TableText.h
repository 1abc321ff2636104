// The rating table as a text for other programs.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "rating/RatingColumn.h"

/// A row of the table: the numbers of its columns, nothing where one is not numeric.
using RatingNumbers = std::vector<std::optional<double>>;

/// These rows of `columns` as comma-separated values: a line of captions with units, then a line for each
/// row, its numbers unrounded in the units on display. Columns without values are left out, a result that is
/// not numeric is an empty field. Where "," is the decimal sign, ";" separates.
std::string RatingTableAsCsv(const RatingColumns& columns, const std::vector<RatingNumbers>& rows);

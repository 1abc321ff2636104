// The rating table as a text for other programs.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "rating/RatingColumn.h"

/// A row of the table: the numbers of CurrentRatingColumns, nothing where one is not numeric.
using RatingNumbers = std::vector<std::optional<double>>;

/// These rows as comma-separated values: a line of captions with units, then a line for each row, its numbers
/// unrounded in the units on display. Columns without values are left out, a result that is not numeric is an
/// empty field. Where "," is the decimal sign, ";" separates.
std::string RatingTableAsCsv(const std::vector<RatingNumbers>& rows);

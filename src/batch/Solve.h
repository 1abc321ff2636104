// Solving the problems of a batch, and their rows of the sheet that is written.
#pragma once

#include <string>

#include "batch/Columns.h"
#include "batch/Options.h"

namespace Batch {

/// The heads of the columns, as a row.
std::string HeadRow();

/// The answer as a row, its numbers from the record.
void AppendRow(std::string& sheet, const Answer& answer, bool recordUnits);

/// Solves a known problem in the record, and says what there is to know of its answer or why it has none.
void Solve(Answer& answer);

/// Rates the problem just solved: a row for each point and, where points have no result, one that says why.
/// `range`: null for the one that the rating table proposes.
void AppendRating(std::string& sheet, const Answer& answer, const RatingRequest* range, bool recordUnits);

/// The input that a rating varies under this name of the record. std::runtime_error when there is none.
const Field& VariedInput(const std::string& name);

}  // namespace Batch

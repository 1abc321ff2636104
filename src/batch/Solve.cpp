// See Solve.h.
#include "batch/Solve.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "app/Declarations.h"
#include "app/NoteSpelling.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "app/main/Problem.h"
#include "app/main/Reasons.h"
#include "batch/Csv.h"
#include "engine/ChannelState.h"
#include "engine/EngineFault.h"
#include "engine/RecordCells.h"
#include "engine/SolveChannel.h"
#include "notes/Notes.h"
#include "rating/RatingSeries.h"

namespace Batch {

namespace {

void Join(std::string& text, const std::string& more) {
  if (!text.empty() && !more.empty()) text += "; ";
  text += more;
}

std::string FirstOffence(const Answer& answer) {
  std::string offence = Problem::OffenceOfSection();
  for (const Field& field : Fields()) {
    if (!offence.empty()) break;
    if (field.FileItem < 0) continue;
    offence = Problem::OffenceOf(field, answer.Typed.Inputs.at(static_cast<std::size_t>(field.FileItem)));
  }
  return offence;
}

std::string WhyUnsolved() {
  try {
    SolveChannel();
    return ChannelState.Area.IsNumeric() ? "" : WhyNoResult({}).Text;
  } catch (const EngineFault& fault) {
    return WhyNoResult(fault.what()).Text;
  }
}

/// What there is to know of the results in the record.
void Comment(Answer& answer) {
  answer.Notes.clear();
  answer.Reason.clear();
  for (const Note& note : NotesOn(Examine(ChannelState), NoteSpelling())) Join(answer.Notes, note.Short);
  for (const Field& field : Fields()) {
    if (field.IsResult() && !(ChannelState.*field.Cell).IsNumeric())
      Join(answer.Reason, WhyBlank(field.Cell).Text);
  }
}

/// The range of a request in feet and seconds.
void SetRange(const RatingRequest& range, const Field& input, bool recordUnits) {
  const double unit = recordUnits ? 1 : UnitFactor(ChannelState.UnitsEorM, input.PageQuantity);
  RatingRange.VaryCode = input.PageQuantity;
  RatingRange.RangeMin = range.First * unit;
  RatingRange.RangeMax = range.Last * unit;
  RatingRange.RangeStep = range.Step * unit;
}

}  // namespace

std::string HeadRow() {
  std::string row;
  for (const Column& column : Columns()) {
    if (column.Text) row += (row.empty() ? "" : ",") + column.Name;
  }
  return row + '\n';
}

void AppendRow(std::string& sheet, const Answer& answer, bool recordUnits) {
  const char* separator = "";
  for (const Column& column : Columns()) {
    if (!column.Text) continue;
    sheet += separator;
    separator = ",";
    const bool posed = column.Take != nullptr;
    if (answer.Known || !posed) sheet += CsvField(column.Text(answer, recordUnits));
  }
  sheet += '\n';
}

void Solve(Answer& answer) {
  Problem::TakeSetting(answer.Typed);
  Problem::TakeInputs([&](const Field& field) -> const std::string& {
    return answer.Typed.Inputs.at(static_cast<std::size_t>(field.FileItem));
  });
  answer.Reason = FirstOffence(answer);
  if (answer.Reason.empty()) answer.Reason = WhyUnsolved();
  answer.Solved = answer.Reason.empty();
  if (answer.Solved) Comment(answer);
}

void AppendRating(std::string& sheet, const Answer& answer, const RatingRequest* range, bool recordUnits) {
  Answer point = answer;
  if (range == nullptr) {
    ProposeRange(ProposedTableSteps);
    point.Varied = FindVariedInput(RatingRange.VaryCode);
  } else {
    point.Varied = &VariedInput(range->Input);
    SetRange(*range, *point.Varied, recordUnits);
  }
  RatingOutcome outcome;
  std::string gaps;
  if (range != nullptr && !CurrentChannelType().AsksFor(*point.Varied)) {
    gaps = range->Input + " is no input of this problem";
  } else {
    outcome = StepRatingSeries(
        RatingRange, LastValue::Snapped,
        [&](int) {
          Comment(point);
          AppendRow(sheet, point, recordUnits);
        },
        [](int) { return true; });
    gaps = outcome.Gaps.Text(outcome.Points);
  }
  if (gaps.empty()) return;
  Answer none = answer;
  none.Solved = false;
  none.Notes.clear();
  none.Reason = gaps;
  AppendRow(sheet, none, recordUnits);
}

const Field& VariedInput(const std::string& name) {
  const auto* const named = std::ranges::find(RecordCells, std::string_view(name), &RecordCell::Name);
  if (named != RecordCells.end()) {
    const auto fields = Fields();
    const auto field = std::ranges::find(fields, named->Cell, &Field::Cell);
    if (field->CanVary()) return *field;
  }
  throw std::runtime_error("--rating=" + name + ": there is no input of this name that can be varied");
}

}  // namespace Batch

// See Columns.h.
#include "batch/Columns.h"

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>
#include <string_view>

#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "engine/ChannelState.h"
#include "engine/NumberText.h"
#include "engine/RecordCells.h"

namespace Batch {

namespace {

using ProjectFile::Project;

constexpr std::size_t MostPoints = std::tuple_size_v<PointTable> - 1;

std::string Number(const EngineValue& value, double unit) {
  return value.IsNumeric() ? PlainNumber(value.Number() / unit) : "";
}

/// A number without the groups that a sheet would take for separators; any other text as it is.
std::string Plain(const std::string& typed) {
  return IsNumeric(typed) ? PlainNumber(LeadingNumber(typed)) : typed;
}

bool Boolean(const std::string& text) {
  struct Word {
    std::string_view Text;
    bool Value;
  };
  constexpr auto Words = std::to_array<Word>({{"True", true},
                                              {"TRUE", true},
                                              {"true", true},
                                              {"1", true},
                                              {"False", false},
                                              {"FALSE", false},
                                              {"false", false},
                                              {"0", false}});
  const auto* const word = std::ranges::find(Words, std::string_view(text), &Word::Text);
  if (word == Words.end()) throw std::runtime_error("SolveForFlow must be True or False");
  return word->Value;
}

int UnitSystem(const std::string& text) {
  for (int units = Units::English; units <= Units::Last; ++units) {
    if (text == std::to_string(units)) return units;
  }
  throw std::runtime_error("UnitsEorM must be 0 or 1");
}

std::vector<std::string> Parts(const std::string& text, char separator) {
  std::vector<std::string> parts(1);
  for (const char c : text) {
    if (c != separator) {
      parts.back() += c;
    } else if (!parts.back().empty()) {
      parts.emplace_back();
    }
  }
  if (parts.back().empty()) parts.pop_back();
  return parts;
}

/// "0 10 0.03;5 2;10 10": station, elevation and, where it changes, n.
void TakePoints(Project& project, const std::string& text) {
  project.Points.clear();
  for (const std::string& point : Parts(text, ';')) {
    std::vector<std::string> cells = Parts(point, ' ');
    if (cells.size() > 3) throw std::runtime_error("IrregPoints: a point has at most three numbers");
    cells.resize(3);
    project.Points.push_back({cells[0], cells[1], cells[2]});
  }
  if (project.Points.size() > MostPoints)
    throw std::runtime_error("IrregPoints: more than " + std::to_string(MostPoints) + " points");
}

std::string PointsText(const Answer&, bool recordUnits) {
  if (!CurrentChannelType().IsSurveyed()) return "";
  const PointTable& points = recordUnits ? ChannelState.IrregEnginePoints : ChannelState.IrregPoints;
  std::string text;
  for (std::size_t row = 1; row <= static_cast<std::size_t>(ChannelState.IrregPointCount); ++row) {
    if (row > 1) text += ';';
    const auto& [unused, station, elevation, roughness] = points[row];
    text += Plain(station.Text()) + ' ' + Plain(elevation.Text());
    if (!roughness.IsEmptyText()) text += ' ' + Plain(roughness.Text());
  }
  return text;
}

std::string& ItemOf(Project& project, const Field& field) {
  return project.Inputs.at(static_cast<std::size_t>(field.FileItem));
}

std::string NumberOf(const Field& field, const Answer& answer, bool recordUnits) {
  const EngineValue& cell = ChannelState.*field.Cell;
  const double unit = recordUnits ? 1 : UnitFactor(ChannelState.UnitsEorM, field.PageQuantity);
  if (!CurrentChannelType().Has(field)) return "";
  if (field.IsResult()) return answer.Solved ? Number(cell, unit) : "";
  const std::string& typed = answer.Typed.Inputs.at(static_cast<std::size_t>(field.FileItem));
  const bool fromRecord = &field == answer.Varied || (recordUnits && IsNumeric(typed));
  return fromRecord ? Number(cell, unit) : Plain(typed);
}

Column ColumnOf(const Field& field) {
  const auto* const named = std::ranges::find(RecordCells, field.Cell, &RecordCell::Cell);
  Column column{std::string(named->Name), nullptr, [&field](const Answer& answer, bool recordUnits) {
                  return NumberOf(field, answer, recordUnits);
                }};
  if (field.FileItem >= 0) {
    column.Take = [&field](Project& project, const std::string& text) { ItemOf(project, field) = text; };
  }
  return column;
}

std::vector<Column> MakeColumns() {
  std::vector<Column> columns = {
      {"Source", nullptr, [](const Answer& answer, bool) { return answer.Source; }},
      {"File", [](Project& project, const std::string& text) { project = ProjectFile::Read(text); }, nullptr},
      {"ProjName", [](Project& project, const std::string& text) { project.ProjName = text; },
       [](const Answer& answer, bool) { return answer.Typed.ProjName; }},
      {"ChannelType", [](Project& project, const std::string& text) { project.ChannelType = text; },
       [](const Answer& answer, bool) { return answer.Typed.ChannelType; }},
      {"SolveForFlow",
       [](Project& project, const std::string& text) { project.SolveForFlow = Boolean(text); },
       [](const Answer& answer, bool) -> std::string {
         return answer.Typed.SolveForFlow ? "True" : "False";
       }},
      {"UnitsEorM", [](Project& project, const std::string& text) { project.UnitsEorM = UnitSystem(text); },
       [](const Answer& answer, bool) { return std::to_string(answer.Typed.UnitsEorM); }},
  };
  for (const Field& field : Fields()) {
    if (field.FileItem >= 0) columns.push_back(ColumnOf(field));
  }
  columns.push_back({"IrregPoints", TakePoints, PointsText});
  for (const Field& field : Fields()) {
    if (field.FileItem < 0) columns.push_back(ColumnOf(field));
  }
  columns.push_back({"Notes", nullptr, [](const Answer& answer, bool) { return answer.Notes; }});
  columns.push_back({"Reason", nullptr, [](const Answer& answer, bool) { return answer.Reason; }});
  return columns;
}

}  // namespace

const std::vector<Column>& Columns() {
  static const std::vector<Column> columns = MakeColumns();
  return columns;
}

}  // namespace Batch

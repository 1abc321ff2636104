// See Inspect.h.
#include "console/Inspect.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

#include "app/Declarations.h"
#include "engine/ChannelState.h"
#include "engine/NumberText.h"
#include "engine/RecordCells.h"
#include "platform/FlexGrid.h"

namespace Inspect {

namespace {

std::string Reply(bool value) {
  return value ? "True" : "False";
}
std::string Reply(int value) {
  return std::to_string(value);
}
std::string Reply(const std::string& value) {
  return value;
}

std::string Reply(const EngineValue& value) {
  if (value.IsFalse()) return "false";
  if (value.IsText()) return "t:" + value.Text();
  std::array<char, 64> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%a", value.Number());
  return "d:" + std::string(buffer.data());
}

template <class T>
std::string Reply(const Property<T>& property) {
  return Reply(property.Get());
}

std::optional<std::string> TextBoxProperty(const TextBox& box, std::string_view property) {
  if (property == "Text") return Reply(box.Text);
  if (property == "Locked") return Reply(box.Locked);
  if (property == "Bold") return Reply(box.Bold);
  if (property == "BackColor") return Reply(box.BackColor);
  if (property == "SelStart") return Reply(box.Selection.Get().Start);
  if (property == "SelLength") return Reply(box.Selection.Get().Length);
  if (property == "SelText") return box.SelectedText();
  return std::nullopt;
}

std::optional<std::string> PointCell(const PointTable& points, const std::vector<std::string>& words) {
  if (words.size() != 3) return std::nullopt;
  std::size_t row = points.size();
  std::size_t column = 0;
  std::from_chars(words[1].data(), words[1].data() + words[1].size(), row);
  std::from_chars(words[2].data(), words[2].data() + words[2].size(), column);
  if (row >= points.size() || column >= points[row].size()) return std::nullopt;
  return Reply(points[row][column]);
}

std::optional<std::string> RatingRangeField(std::string_view name) {
  if (name == "VaryCode") return Reply(RatingRange.VaryCode);
  if (name == "GraphYColumn") return Reply(RatingRange.GraphYColumn);
  if (name == "RangeMin") return Reply(RatingRange.RangeMin);
  if (name == "RangeMax") return Reply(RatingRange.RangeMax);
  if (name == "RangeStep") return Reply(RatingRange.RangeStep);
  if (name == "RatingCancelled") return Reply(RatingRange.RatingCancelled);
  return std::nullopt;
}

}  // namespace

std::optional<std::string> ControlProperty(const Control& control, std::string_view property) {
  if (property == "Enabled") return Reply(control.Enabled);
  if (property == "Visible") return Reply(control.Visible);
  if (property == "ToolTip") return Reply(control.ToolTip);
  if (const auto* captioned = dynamic_cast<const HasCaption*>(&control); captioned && property == "Caption") {
    return Reply(captioned->Caption);
  }
  if (const auto* item = dynamic_cast<const MenuItem*>(&control); item && property == "Checked") {
    return Reply(item->Checked);
  }
  if (const auto* option = dynamic_cast<const OptionButton*>(&control); option && property == "Value") {
    return Reply(option->Value);
  }
  if (const auto* list = dynamic_cast<const ListBox*>(&control); list && property == "ListIndex") {
    return Reply(list->ListIndex);
  }
  if (const auto* list = dynamic_cast<const ListBox*>(&control); list && property == "Text") {
    const int index = list->ListIndex;
    return index < 0 ? "" : list->Items.Get()[static_cast<std::size_t>(index)];
  }
  if (const auto* grid = dynamic_cast<const FlexGrid*>(&control); grid && property == "Row") {
    return Reply(grid->Selection.Get().Row);
  }
  if (const auto* grid = dynamic_cast<const FlexGrid*>(&control); grid && property == "Col") {
    return Reply(grid->Selection.Get().Col);
  }
  if (const auto* page = dynamic_cast<const TextPage*>(&control); page && property == "Text")
    return page->Text;
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) return TextBoxProperty(*box, property);
  return std::nullopt;
}

std::vector<std::string> ChartValues(const XYChart& chart) {
  std::vector<std::string> values = {chart.XTitle, chart.YTitle};
  for (const XYChart::Row& row : chart.Rows()) {
    for (const std::optional<double>& value : row) values.push_back(value ? PlainNumber(*value) : "");
  }
  return values;
}

std::optional<std::string> RecordField(const std::vector<std::string>& words) {
  const std::string& name = words.front();
  const ChannelRecord& record = ChannelState;
  if (name == "points") return PointCell(record.IrregPoints, words);
  if (name == "enginepoints") return PointCell(record.IrregEnginePoints, words);
  const auto* const cell = std::ranges::find(RecordCells, name, &RecordCell::Name);
  if (cell != RecordCells.end()) return Reply(record.*cell->Cell);
  if (name == "ChannelType") return record.ChannelType;
  if (name == "SolveForFlow") return Reply(record.SolveForFlow);
  if (name == "UnitsEorM") return Reply(record.UnitsEorM);
  if (name == "IrregPointCount") return Reply(record.IrregPointCount);
  return std::nullopt;
}

std::optional<std::string> SharedVariable(std::string_view name) {
  constexpr std::string_view record = "RatingRange.";
  if (name.starts_with(record)) return RatingRangeField(name.substr(record.size()));
  if (name == "DataChanged") return Reply(Declarations::DataChanged);
  if (name == "FilePath") return Declarations::FilePath;
  if (name == "FileTitle") return Declarations::FileTitle;
  if (name == "UserPath") return Declarations::UserPath;
  if (name == "SigDigs") return Reply(Declarations::SigDigs);
  if (name == "EngDigs") return Reply(Declarations::EngDigs);
  return std::nullopt;
}

}  // namespace Inspect

// See Problem.h.
#include "app/main/Problem.h"

#include "app/Declarations.h"
#include "app/FormStuff.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "app/main/Reasons.h"
#include "app/main/frmMain.h"
#include "engine/ChannelState.h"
#include "engine/NumberText.h"

namespace Problem {

std::string* ItemOf(ProjectFile::Project& project, const Field& field) {
  return field.FileItem < 0 ? nullptr : &project.Inputs.at(static_cast<std::size_t>(field.FileItem));
}

void TakeSetting(const ProjectFile::Project& project) {
  ChannelRecord& record = ChannelState;
  record.ChannelType = project.ChannelType;
  record.SolveForFlow = project.SolveForFlow;
  record.UnitsEorM = project.UnitsEorM;
  Declarations::SigDigs = project.SigDigs;
  Declarations::EngDigs = project.EngDigs;
  EmptySection();
  for (const auto& [station, elevation, roughness] : project.Points) {
    auto& point = record.IrregPoints[static_cast<std::size_t>(++record.IrregPointCount)];
    point[1] = station;
    point[2] = elevation;
    point[3] = roughness;
  }
}

std::string OffenceOfSection() {
  const ChannelType& type = CurrentChannelType();
  if (type.Name.empty()) return "Choose a channel type";
  if (!type.IsSurveyed()) return "";
  const bool empty = ChannelState.IrregPoints[1][1] == EngineValue("");
  return empty ? "Enter the points of the section"
               : WhyRefused(ChannelState.IrregPoints, ChannelState.IrregPointCount);
}

std::string OffenceOf(const Field& field, const std::string& typed) {
  if (field.IsResult() || !CurrentChannelType().Has(field)) return "";
  const auto number = NumericValue(typed);
  if (!typed.empty() && !number) return FormStuff::WhyNoNumber(field.Caption.Current(), typed);
  if (field.IsElevation()) return field.SurveyedOffence(typed);
  const bool within = number && FormStuff::Within(*number, field.Bounds);
  return within ? "" : field.Caption.Current() + (" must be" + FormStuff::RangeText(field.Bounds));
}

void TakeInputs(const std::function<const std::string&(const Field&)>& typed) {
  ChannelRecord& record = ChannelState;
  for (const Field& field : Fields()) {
    if (field.IsResult()) continue;
    const std::string& text = typed(field);
    const bool converted = TypedDecimals(record.UnitsEorM, field.Quantity).has_value();
    record.*field.Cell = converted
                             ? EngineValue(LeadingNumber(text) * UnitFactor(record.UnitsEorM, field.Quantity))
                             : EngineValue(text);
  }
  frmMain::FillPipe();
  const double length = UnitFactor(record.UnitsEorM, Units::Length);
  for (std::size_t row = 1; row <= static_cast<std::size_t>(record.IrregPointCount); ++row) {
    const auto& point = record.IrregPoints[row];
    auto& taken = record.IrregEnginePoints[row];
    taken[1] = point[1].Number() * length;
    taken[2] = point[2].Number() * length;
    if (point[3] != EngineValue("")) taken[3] = point[3].Number();
  }
}

}  // namespace Problem

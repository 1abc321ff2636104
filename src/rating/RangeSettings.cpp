// See RangeSettings.h.
#include "rating/RangeSettings.h"

#include <algorithm>
#include <cmath>

#include "app/FormStuff.h"
#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "engine/NumberText.h"
#include "rating/RatingSeries.h"

namespace {

/// The inputs that the channel type lets vary; the quantity solved for is none of them.
std::vector<const Field*> VariableInputs() {
  std::vector<const Field*> inputs;
  for (const Field& field : Fields()) {
    if (field.CanVary() && CurrentChannelType().AsksFor(field)) inputs.push_back(&field);
  }
  return inputs;
}

bool IsNumber(const TextBox& box) {
  return IsNumeric(box.Text.Get());
}

std::string TwoDecimals(double x) {
  return FixedFormat(x, 1, 2).Text();
}

}  // namespace

RangeSettings::RangeSettings(std::string name) : Form(std::move(name)) {
  Frame1.Caption = "Range";
  Label1.Caption = "First";
  Label2.Caption = "Last";
  cmdOK.Caption = "OK";
  cmdCancel.Caption = "Cancel";
  cbxVary.Click = [this] { ProposeRange(); };
  RefuseLongTexts(tbMin);
  RefuseLongTexts(tbMax);
  tbMin.Change = tbMax.Change = [this] { EnableOK(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void RangeSettings::Form_Load() {
  before_ = RatingRange;
  lblSolveFor.Caption = ChannelState.SolveForFlow ? "Solve for Flow" : "Solve for Depth";
  inputs_ = VariableInputs();
  std::vector<std::string> names;
  for (const Field* const input : inputs_) names.emplace_back(input->ListName);
  cbxVary.Items = names;
  const auto current = std::ranges::find(inputs_, RatingRange.VaryCode, &Field::PageQuantity);
  if (current != inputs_.end()) {
    cbxVary.ListIndex = static_cast<int>(current - inputs_.begin());
    tbMin.Text = Shown(RatingRange.RangeMin);
    tbMax.Text = Shown(RatingRange.RangeMax);
  }
  EnableOK();
}

void RangeSettings::ProposeRange() {
  cbxVary_Click();
  ForgetEdits();
}

void RangeSettings::cbxVary_Click() {
  const Field& input = *inputs_[static_cast<std::size_t>(cbxVary.ListIndex)];
  RatingRange.VaryCode = input.PageQuantity;
  const std::string lowest = input.IsElevation() ? Shown(LowestVaried(input)) : "0";
  tbMin.Text = input.FirstOffered ? TwoDecimals(*input.FirstOffered) : lowest;
  tbMax.Text = input.LastOffered ? TwoDecimals(*input.LastOffered) : Shown(ChannelState.*input.Cell);
  for (const int which : {0, 1})
    lblunits[which].Caption = UnitLabel(ChannelState.UnitsEorM, RatingRange.VaryCode);
  EnableOK();
}

bool RangeSettings::Mark(TextBox& box, const std::string& offence) {
  box.ToolTip = offence;
  // An empty box is a question, not a mistake.
  box.Offending = !offence.empty() && !box.Text.Get().empty();
  return offence.empty();
}

void RangeSettings::RefuseLongTexts(TextBox& box) {
  box.TooLong = [&box] { box.ToolTip = FormStuff::TooLongForBox; };
}

std::string RangeSettings::LastOffence() const {
  if (!IsNumber(tbMax)) return FormStuff::WhyNoNumber("Last", tbMax.Text.Get());
  const bool greater = !IsNumber(tbMin) || LeadingNumber(tbMax.Text.Get()) > LeadingNumber(tbMin.Text.Get());
  return greater ? "" : "Last must be greater than first";
}

void RangeSettings::EnableOK() {
  const bool first = Mark(tbMin, IsNumber(tbMin) ? "" : FormStuff::WhyNoNumber("First", tbMin.Text.Get()));
  const bool last = Mark(tbMax, LastOffence());
  const bool step = MarkStep();
  cmdOK.Enabled = first && last && step;
}

void RangeSettings::cmdOK_Click() {
  RatingRange.RatingCancelled = false;
  RatingRange.RangeMin = Internal(tbMin);
  RatingRange.RangeMax = Internal(tbMax);
  accepted_ = true;
  Unload();
}

void RangeSettings::cmdCancel_Click() {
  RatingRange.RatingCancelled = true;
  Unload();
}

bool RangeSettings::Form_QueryUnload() {
  if (!accepted_) RatingRange.GoBackTo(before_);
  return true;
}

double RangeSettings::Internal(const TextBox& box) {
  return LeadingNumber(box.Text.Get()) * UnitFactor(ChannelState.UnitsEorM, RatingRange.VaryCode);
}

bool RangeSettings::HasFixedDecimals() {
  const Field* const input = FindVariedInput(RatingRange.VaryCode);
  return input != nullptr && input->FixedDecimals;
}

std::string RangeSettings::Shown(const EngineValue& value) {
  // Rounding up might leave the numbers that there are.
  if (!std::isfinite(2 * value.Number())) return value.Text();
  return ShownNumber(value, RatingRange.VaryCode, HasFixedDecimals());
}

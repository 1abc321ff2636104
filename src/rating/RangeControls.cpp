// See RangeControls.h.
#include "rating/RangeControls.h"

#include <algorithm>
#include <cmath>

#include "app/FormStuff.h"
#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "app/main/TypedUnits.h"
#include "engine/NumberText.h"
#include "rating/RatingSeries.h"

namespace {

bool IsNumber(const TextBox& box) {
  return IsNumeric(box.Text.Get());
}

std::string TwoDecimals(double x) {
  return FixedFormat(x, 1, 2).Text();
}

}  // namespace

std::vector<const Field*> VariableInputs() {
  std::vector<const Field*> inputs;
  for (const Field& field : Fields()) {
    if (field.CanVary() && CurrentChannelType().AsksFor(field)) inputs.push_back(&field);
  }
  return inputs;
}

std::string WholeNumber(double value, int quantity, bool fixedDecimals) {
  const std::string whole = TypedUnits::SevenDigits(value / UnitFactor(ChannelState.UnitsEorM, quantity));
  const std::string shown = ShownNumber(value, quantity, fixedDecimals);
  return NumericValue(shown) == NumericValue(whole) ? shown : whole;
}

RangeControls::RangeControls(Form* form)
    : Label1(form, "Label1"),
      Label2(form, "Label2"),
      cbxVary(form, "cbxVary"),
      tbMin(form, "tbMin"),
      tbMax(form, "tbMax"),
      lblunits(form, "lblunits"),
      lblRange(form, "lblRange") {
  Label1.Caption = "First";
  Label2.Caption = "Last";
  RefuseLongTexts(tbMin);
  RefuseLongTexts(tbMax);
}

void RangeControls::ShowRangeInForce() {
  inputs_ = VariableInputs();
  std::vector<std::string> names;
  for (const Field* const input : inputs_) names.emplace_back(input->ListName);
  cbxVary.Items = names;
  varyCode_ = RatingRange.VaryCode;
  const auto current = std::ranges::find(inputs_, varyCode_, &Field::PageQuantity);
  if (current == inputs_.end()) return;
  cbxVary.ListIndex = static_cast<int>(current - inputs_.begin());
  tbMin.Text = Shown(RatingRange.RangeMin);
  tbMax.Text = Shown(RatingRange.RangeMax);
}

const Field* RangeControls::Varied() const {
  return cbxVary.ListIndex < 0 ? nullptr : inputs_[static_cast<std::size_t>(cbxVary.ListIndex)];
}

void RangeControls::Propose() {
  const Field& input = *Varied();
  varyCode_ = input.PageQuantity;
  const std::string lowest = input.IsElevation() ? Shown(LowestVaried(input)) : "0";
  tbMin.Text = input.FirstOffered ? TwoDecimals(*input.FirstOffered) : lowest;
  tbMax.Text = input.LastOffered ? TwoDecimals(*input.LastOffered) : Shown(ChannelState.*input.Cell);
  for (const int which : {0, 1}) lblunits[which].Caption = UnitLabel(ChannelState.UnitsEorM, varyCode_);
}

RatingRangeRecord RangeControls::TypedRange() const {
  RatingRangeRecord range = RatingRange;
  range.VaryCode = varyCode_;
  range.RangeMin = Internal(tbMin);
  range.RangeMax = Internal(tbMax);
  return range;
}

std::string RangeControls::LastOffence() const {
  if (!IsNumber(tbMax)) return FormStuff::WhyNoNumber("Last", tbMax.Text.Get());
  const bool greater = !IsNumber(tbMin) || LeadingNumber(tbMax.Text.Get()) > LeadingNumber(tbMin.Text.Get());
  return greater ? "" : "Last must be greater than first";
}

bool RangeControls::MarkEnds() {
  const bool first =
      FormStuff::Mark(tbMin, IsNumber(tbMin) ? "" : FormStuff::WhyNoNumber("First", tbMin.Text.Get()));
  const bool last = FormStuff::Mark(tbMax, LastOffence());
  return first && last;
}

void RangeControls::RefuseLongTexts(TextBox& box) {
  box.TooLong = [this, &box] {
    box.ToolTip = FormStuff::TooLongForBox;
    lblRange.Caption = FirstOffence();
  };
}

std::string RangeControls::FirstOffence() const {
  for (const TextBox* const box : checked_) {
    if (!box->ToolTip.Get().empty()) return box->ToolTip;
  }
  return "";
}

double RangeControls::Internal(const TextBox& box) const {
  return LeadingNumber(box.Text.Get()) * UnitFactor(ChannelState.UnitsEorM, varyCode_);
}

bool RangeControls::HasFixedDecimals() const {
  const Field* const input = FindVariedInput(varyCode_);
  return input != nullptr && input->FixedDecimals;
}

std::string RangeControls::Shown(const EngineValue& value) const {
  // Rounding up might leave the numbers that there are.
  if (!std::isfinite(2 * value.Number())) return value.Text();
  return ShownNumber(value, varyCode_, HasFixedDecimals());
}

std::string RangeControls::ShownWhole(double value) const {
  return WholeNumber(value, varyCode_, HasFixedDecimals());
}

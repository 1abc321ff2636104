// See FamilyControls.h.
#include "rating/FamilyControls.h"

#include <algorithm>

#include "app/FormStuff.h"
#include "app/LastUsed.h"
#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "app/main/Fields.h"
#include "app/main/frmMain.h"
#include "engine/NumberText.h"
#include "rating/RangeControls.h"

namespace {

/// The texts between the semicolons; an empty one at the end is still to be typed.
std::vector<std::string> Pieces(const std::string& text) {
  std::vector<std::string> pieces(1);
  for (const char c : text) {
    if (c == ';') {
      pieces.emplace_back();
    } else if (c != ' ' || !pieces.back().empty()) {
      pieces.back() += c;
    }
  }
  for (std::string& piece : pieces) piece.erase(piece.find_last_not_of(' ') + 1);
  if (pieces.back().empty()) pieces.pop_back();
  return pieces;
}

/// "b = 3 m"; a ratio has no unit.
std::string LabelOf(const Field& input, const std::string& typed) {
  const std::string unit =
      input.Quantity == Units::Slope ? "" : UnitLabel(ChannelState.UnitsEorM, input.PageQuantity);
  return std::string(input.Symbol.Current()) + " = " + typed + (unit.empty() ? "" : " " + unit);
}

double Factor(const Field& input) {
  return UnitFactor(ChannelState.UnitsEorM, input.PageQuantity);
}

/// Without the digits in which the numbers around a typed one say more than is meant.
std::string TwoDigits(double x) {
  return PlainNumberInLocale(NumericValue(SigFormat(x, 1, 2).Text()).value_or(x));
}

}  // namespace

FamilyControls::FamilyControls(Form* form)
    : lblFamily(form, "lblFamily"),
      lblValues(form, "lblValues"),
      lblFamilyUnit(form, "lblFamilyUnit"),
      cbxFamily(form, "cbxFamily"),
      tbFamily(form, "tbFamily") {
  lblFamily.Caption = "Family";
  lblValues.Caption = "Values";
  tbFamily.Enabled = false;
}

void FamilyControls::ListFamilies(const Field* varied) {
  const Field* const chosen = FamilyInput();
  inputs_ = VariableInputs();
  std::erase(inputs_, varied);
  std::vector<std::string> names{"None"};
  for (const Field* const input : inputs_) names.emplace_back(input->ListName);
  // No line is chosen while the lines change.
  cbxFamily.ListIndex = -1;
  cbxFamily.Items = names;
  const auto still = std::ranges::find(inputs_, chosen);
  cbxFamily.ListIndex = still == inputs_.end() ? 0 : static_cast<int>(still - inputs_.begin()) + 1;
}

const Field* FamilyControls::FamilyInput() const {
  return cbxFamily.ListIndex <= 0 ? nullptr : inputs_[static_cast<std::size_t>(cbxFamily.ListIndex - 1)];
}

void FamilyControls::ProposeFamily(const frmMain& main) {
  const Field* const input = FamilyInput();
  tbFamily.Enabled = input != nullptr;
  lblFamilyUnit.Caption = input == nullptr ? "" : UnitLabel(ChannelState.UnitsEorM, input->PageQuantity);
  std::vector<std::string> values;
  if (input != nullptr) {
    const auto used = LastUsed().Families.find(input->PageQuantity);
    if (used != LastUsed().Families.end()) {
      for (const double value : used->second)
        values.push_back(WholeNumber(value, input->PageQuantity, input->FixedDecimals));
    } else {
      const std::string& typed = (main.*input->Box).Text;
      const double x = LeadingNumber(typed);
      values = {TwoDigits(0.85 * x), typed, TwoDigits(1.15 * x)};
    }
  }
  std::string text;
  for (const std::string& value : values) text += (text.empty() ? "" : "; ") + value;
  tbFamily.Text = text;
}

FamilyControls::Family FamilyControls::TypedFamily(const frmMain& main) const {
  Family family{FamilyInput(), {}, ""};
  if (family.Input == nullptr) return family;
  for (const std::string& typed : Pieces(tbFamily.Text))
    family.Members.push_back({LeadingNumber(typed) * Factor(*family.Input), LabelOf(*family.Input, typed)});
  if (!family.Members.empty()) family.Present = LabelOf(*family.Input, (main.*family.Input->Box).Text);
  return family;
}

std::string FamilyControls::FamilyOffence() const {
  const Field* const input = FamilyInput();
  if (input == nullptr) return "";
  const std::vector<std::string> pieces = Pieces(tbFamily.Text);
  if (pieces.size() > MostMembers) return "No more than six values";
  for (const std::string& typed : pieces) {
    if (!IsNumeric(typed)) return FormStuff::WhyNoNumber("Each value", typed);
    const bool within = input->IsElevation() || FormStuff::Within(LeadingNumber(typed), input->RatedBounds);
    if (!within) return std::string(input->ListName) + " must be" + FormStuff::RangeText(input->RatedBounds);
  }
  return "";
}

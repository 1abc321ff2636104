// See FormStuff.h.
#include "app/FormStuff.h"

#include "engine/NumberText.h"
#include "platform/Services.h"

namespace FormStuff {

namespace {

std::string Bound(const char* inclusiveWord, const char* exclusiveWord, bool inclusive, double bound) {
  return std::string(inclusive ? inclusiveWord : exclusiveWord) + (bound < 0 ? "" : " ") +
         PlainNumberInLocale(bound);
}

}  // namespace

bool Within(double x, const Range& range) {
  if (range.Min && (range.MinInclusive ? x < *range.Min : x <= *range.Min)) return false;
  if (range.Max && (range.MaxInclusive ? x > *range.Max : x >= *range.Max)) return false;
  return true;
}

std::string RangeText(const Range& range) {
  std::string text;
  if (range.Min) text += Bound(" greater than or equal to", " greater than", range.MinInclusive, *range.Min);
  if (range.Min && range.Max) text += " and";
  if (range.Max) text += Bound(" less than or equal to", " less than", range.MaxInclusive, *range.Max);
  return text;
}

std::string WhyNoNumber(const std::string& name, std::string_view text) {
  if (IsTooLarge(text)) return name + " is too large a number";
  const std::string must = name + " must be a number";
  return text.empty() ? must
                      : must + "; the decimal sign here is '" + CurrentNumberLocale().DecimalSign + "'";
}

bool Mark(TextBox& box, const std::string& offence, bool isMistake) {
  box.ToolTip = offence;
  box.Offending = isMistake && !offence.empty() && !box.Text.Get().empty();
  return offence.empty();
}

bool CheckRange(std::string_view value, std::optional<double> min, bool minInclusive,
                std::optional<double> max, bool maxInclusive, bool showMessage) {
  if (value.empty()) return false;
  const Range range{min, minInclusive, max, maxInclusive};
  const std::optional<double> number = NumericValue(value);
  const bool valid = number && Within(*number, range);
  if (!valid && showMessage) {
    TheServices().messageBox.Show("Must be" + RangeText(range), "Warning", BoxIcon::Exclamation,
                                  BoxButtons::Ok);
  }
  return valid;
}

void SelectAllText(TextBox& box) {
  box.SelectAll();
}

std::string AddLeadingZero(const TextBox& box) {
  return AddLeadingZero(box.Text.Get());
}

std::string AddLeadingZero(const std::string& text) {
  if (!text.starts_with(CurrentNumberLocale().DecimalSign)) return text;
  const std::optional<double> number = NumericValue(text);
  return number && *number >= 0 && *number < 1 ? "0" + text : text;
}

}  // namespace FormStuff

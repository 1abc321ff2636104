// See FileNumber.h.
#include "app/project/FileNumber.h"

#include "engine/NumberText.h"

namespace FileNumber {

namespace {

const NumberLocale FileLocale{".", ","};

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Length of the group separator that `rest` begins with: 0 unless a digit follows, as after a blank at the
/// end of the number.
size_t SeparatorLength(std::string_view rest, const NumberLocale& locale) {
  const size_t length = GroupSeparatorLength(rest, locale);
  return length < rest.size() && IsDigit(rest[length]) ? length : 0;
}

std::string Respelled(const std::string& text, const NumberLocale& from, const NumberLocale& to) {
  if (!NumericValue(text, from)) return text;
  std::string spelled;
  for (std::string_view rest = text; !rest.empty();) {
    const bool afterDigit = !spelled.empty() && IsDigit(spelled.back());
    const size_t separator = afterDigit ? SeparatorLength(rest, from) : 0;
    if (rest.starts_with(from.DecimalSign)) {
      spelled += to.DecimalSign;
      rest.remove_prefix(from.DecimalSign.size());
    } else if (separator > 0) {
      spelled += to.GroupSeparator;
      rest.remove_prefix(separator);
    } else {
      spelled += rest.front();
      rest.remove_prefix(1);
    }
  }
  return spelled;
}

}  // namespace

bool IsNumeric(std::string_view text) {
  return NumericValue(text, FileLocale).has_value();
}

std::string FromUser(const std::string& text) {
  return Respelled(text, CurrentNumberLocale(), FileLocale);
}

std::string ToUser(const std::string& text) {
  return Respelled(text, FileLocale, CurrentNumberLocale());
}

}  // namespace FileNumber

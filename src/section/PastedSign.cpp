// See PastedSign.h.
#include "section/PastedSign.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "engine/NumberText.h"
#include "section/IrregTable.h"
#include "section/Spelling.h"

namespace {

/// Calls `visit` for each cell of the rows with its place from (0, 0) and the sign behind it, which is TAB,
/// CR or, at the end, NUL; as long as it returns true.
template <class Visit>
void ForEachCell(std::string_view rows, Visit visit) {
  int row = 0;
  int col = 0;
  for (bool goesOn = true; goesOn;) {
    const std::size_t end = std::min(rows.find_first_of("\t\r"), rows.size());
    const char sign = end < rows.size() ? rows[end] : '\0';
    goesOn = visit(row, col, rows.substr(0, end), sign) && sign != '\0';
    if (!goesOn) return;
    rows.remove_prefix(end + 1);
    col = sign == '\t' ? col + 1 : 0;
    if (sign == '\r') ++row;
  }
}

/// A locale in which the other of "." and "," is the decimal sign; nothing where groups are separated by
/// anything else.
std::optional<NumberLocale> OtherSign() {
  const NumberLocale& here = CurrentNumberLocale();
  if (here.GroupSeparator != "." && here.GroupSeparator != ",") return std::nullopt;
  return NumberLocale{here.GroupSeparator, here.DecimalSign};
}

/// The first station or elevation whose sign only the user can decide; empty where there is none.
std::string Doubtful(std::string_view rows, const GridBlock& block, const NumberLocale& other) {
  std::string first;
  bool plain = false;  // by a number with the decimal sign of this locale
  ForEachCell(rows, [&](int row, int col, std::string_view cell, char) {
    const bool judged = block.Left() + col <= std::min(block.Right(), IrregTable::Elevation);
    plain = plain || (judged && cell.find(other.GroupSeparator) != std::string_view::npos);
    if (judged && first.empty() && Survey::MayBeThousands(cell, other)) first = cell;
    return !plain && block.Top() + row <= block.Bottom();
  });
  return plain ? "" : first;
}

std::string Respelled(std::string_view rows, const NumberLocale& other) {
  std::string spelled;
  ForEachCell(rows, [&](int, int, std::string_view cell, char sign) {
    std::string text(cell);
    const std::size_t at = NumericValue(cell, other) ? text.find(other.DecimalSign) : std::string::npos;
    if (at != std::string::npos)
      text.replace(at, other.DecimalSign.size(), CurrentNumberLocale().DecimalSign);
    spelled += text;
    if (sign != '\0') spelled += sign;
    return true;
  });
  return spelled;
}

}  // namespace

namespace PastedSign {

BoxAnswer Ask(const std::string& doubtful, const std::string& sign) {
  return TheServices().messageBox.Show("\"" + doubtful + "\" reads as " +
                                           PlainNumberInLocale(LeadingNumber(doubtful)) + " here. Is \"" +
                                           sign + "\" the decimal sign of these points?",
                                       "Warning", BoxIcon::Exclamation, BoxButtons::YesNoCancel);
}

std::optional<std::string> Settled(std::string rows, const GridBlock& block) {
  const std::optional<NumberLocale> other = OtherSign();
  const std::string doubtful = other ? Doubtful(rows, block, *other) : "";
  if (doubtful.empty()) return rows;
  const BoxAnswer answer = Ask(doubtful, other->DecimalSign);
  if (answer == BoxAnswer::Cancel) return std::nullopt;
  return answer == BoxAnswer::Yes ? Respelled(rows, *other) : rows;
}

}  // namespace PastedSign

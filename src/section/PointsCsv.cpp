// See PointsCsv.h.
#include "section/PointsCsv.h"

#include <algorithm>

#include "app/project/FileNumber.h"
#include "engine/NumberText.h"

namespace PointsCsv {

namespace {

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \t");
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// A typed number with a decimal point or comma and no groups. "1,234" could be read back as a thousand, so a
/// comma before three digits gets a fourth.
std::string Spelled(const std::string& typed, bool decimalComma) {
  std::string spelled = Trimmed(FileNumber::FromUser(typed));
  std::erase(spelled, ',');
  const std::size_t sign = spelled.find('.');
  if (!decimalComma || sign == std::string::npos) return spelled;
  spelled[sign] = ',';
  const std::size_t end = std::min(spelled.find_first_of("eE"), spelled.size());
  if (end - sign == 4) spelled.insert(end, "0");
  return spelled;
}

}  // namespace

std::string Format(const IrregTable::Table& table, const std::string& unit, const std::string& remark) {
  const bool decimalComma = CurrentNumberLocale().DecimalSign == ",";
  const std::string separator = decimalComma ? ";" : ",";
  const auto line = [&](const std::string& station, const std::string& elevation, const std::string& n) {
    return station + separator + elevation + separator + n + "\r\n";
  };
  std::string text = "# " + remark;
  std::ranges::replace_if(
      text, [](char c) { return c >= 0 && c < ' '; }, ' ');  // a name may hold a line end
  text += "\r\n" + line("Station (" + unit + ")", "Elevation (" + unit + ")", "n");
  for (int row = 1; row <= IrregTable::PointCount(table); ++row) {
    const auto& point = table[static_cast<std::size_t>(row)];
    text += line(Spelled(point[1], decimalComma), Spelled(point[2], decimalComma),
                 Spelled(point[3], decimalComma));
  }
  return text;
}

}  // namespace PointsCsv

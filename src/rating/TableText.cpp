// See TableText.h.
#include "rating/TableText.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "engine/NumberText.h"
#include "rating/RatingColumn.h"

namespace {

constexpr const char* LineEnd = "\r\n";

std::string Joined(const std::vector<std::string>& fields, char separator) {
  std::string line;
  for (const std::string& field : fields) {
    if (&field != &fields.front()) line += separator;
    const bool quoted = field.find(separator) != std::string::npos;
    line += quoted ? '"' + field + '"' : field;
  }
  return line + LineEnd;
}

}  // namespace

std::string RatingTableAsCsv(const frmMain& main, const RatingRangeRecord& range) {
  const char separator = CurrentNumberLocale().DecimalSign == "," ? ';' : ',';
  std::vector<RatingColumn> columns;
  std::ranges::copy_if(CurrentRatingColumns(), std::back_inserter(columns),
                       [](const RatingColumn& column) { return column.Cell != nullptr; });
  const auto line = [&](const auto& field) {
    std::vector<std::string> fields(columns.size());
    std::ranges::transform(columns, fields.begin(), field);
    return Joined(fields, separator);
  };
  std::string csv = line([](const RatingColumn& column) { return column.Header(); });
  RunRatingSeries(main, range, LastValue::Snapped, [&](int) {
    csv += line([](const RatingColumn& column) {
      const auto number = column.Number();
      return number ? PlainNumberInLocale(*number) : "";
    });
  });
  return csv;
}

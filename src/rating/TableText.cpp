// See TableText.h.
#include "rating/TableText.h"

#include "engine/NumberText.h"

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

std::string RatingTableAsCsv(const RatingColumns& columns, const std::vector<RatingNumbers>& rows) {
  const char separator = CurrentNumberLocale().DecimalSign == "," ? ';' : ',';
  const auto line = [&](const auto& field) {
    std::vector<std::string> fields;
    for (std::size_t column = 0; column < columns.size(); ++column) {
      if (columns[column].Cell != nullptr) fields.push_back(field(column));
    }
    return Joined(fields, separator);
  };
  std::string csv = line([&](std::size_t column) { return columns[column].Header(); });
  for (const RatingNumbers& row : rows) {
    csv += line([&](std::size_t column) { return row[column] ? PlainNumberInLocale(*row[column]) : ""; });
  }
  return csv;
}

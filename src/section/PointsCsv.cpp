// See PointsCsv.h.
#include "section/PointsCsv.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <vector>

#include "app/project/FileNumber.h"
#include "engine/NumberText.h"
#include "files/TextEncoding.h"

namespace PointsCsv {

namespace {

const NumberLocale DecimalPoint{".", ","};
const NumberLocale DecimalComma{",", "."};
const std::string GroupSpace = "\u202F";  // beside either sign; the other spaces count as well

struct Line {
  int Number;
  std::vector<std::string> Fields;
};

[[noreturn]] void Refuse(int line, const std::string& why) {
  throw std::runtime_error("Line " + std::to_string(line) + ": " + why);
}

std::string InQuotes(const std::string& text) {
  return "\"" + text + "\"";
}

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \t");
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// The first of TAB, ";" and "," that stands outside quotes: a text with TABs or semicolons has its commas
/// for something else.
char SeparatorOf(std::string_view text) {
  std::string outside;
  bool quoted = false;
  for (const char c : text) {
    quoted = c == '"' ? !quoted : quoted && c != '\r' && c != '\n';
    if (!quoted) outside += c;
  }
  for (const char separator : {'\t', ';'}) {
    if (outside.find(separator) != std::string::npos) return separator;
  }
  return ',';
}

/// The fields of a line without the blanks around them, up to the last that is not empty.
Line Split(std::string_view text, int number, char separator) {
  Line line{number, {""}};
  bool quoted = false;
  for (const char c : text) {
    if (c == '"') {
      quoted = !quoted;
    } else if (c == separator && !quoted) {
      line.Fields.emplace_back();
    } else {
      line.Fields.back() += c;
    }
  }
  if (quoted) Refuse(number, "A quotation mark is not closed.");
  for (std::string& field : line.Fields) field = Trimmed(field);
  while (!line.Fields.empty() && line.Fields.back().empty()) line.Fields.pop_back();
  return line;
}

/// The lines that are not blank.
std::vector<Line> SplitLines(std::string_view text, char separator) {
  std::vector<Line> lines;
  for (int number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    Line line = Split(text.substr(0, end), number, separator);
    if (!line.Fields.empty()) lines.push_back(std::move(line));
    text.remove_prefix(end);
    text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, text.size()));
  }
  return lines;
}

bool BeginsLikeNumber(const std::string& field) {
  const std::size_t first = field.find_first_not_of("+-.,");
  return first != std::string::npos && field[first] >= '0' && field[first] <= '9';
}

bool IsHead(const Line& line) {
  return std::ranges::none_of(line.Fields, BeginsLikeNumber);
}

void CheckFields(const Line& line) {
  const std::vector<std::string>& fields = line.Fields;
  if (fields.size() < 2 || fields[0].empty() || fields[1].empty())
    Refuse(line.Number, "A point needs a station and an elevation.");
  if (fields.size() > 3) Refuse(line.Number, "A point is a station, an elevation and an n, and no more.");
}

/// The value of the field, its groups separated as the locale says or by spaces.
std::optional<double> ValueIn(const NumberLocale& locale, const std::string& field) {
  const std::optional<double> value = NumericValue(field, locale);
  return value ? value : NumericValue(field, {locale.DecimalSign, GroupSpace});
}

/// Which decimal signs are possible when a text is the number `field`; neither: it is no number.
struct Readings {
  std::optional<double> WithPoint, WithComma;
  explicit Readings(const std::string& field)
      : WithPoint(ValueIn(DecimalPoint, field)), WithComma(ValueIn(DecimalComma, field)) {}
};

/// The spelling that every number of the text fits and no other does.
NumberLocale LocaleOf(const std::vector<Line>& lines, char separator) {
  bool point = true;
  // Where commas separate the fields, only one in quotes can be part of a number.
  bool comma = separator != ',';
  for (const Line& line : lines) {
    for (const std::string& field : line.Fields) comma = comma || field.find(',') != std::string::npos;
  }
  for (const Line& line : lines) {
    for (const std::string& field : line.Fields) {
      const Readings readings(field);
      if (field.empty()) continue;
      if (!readings.WithPoint && !readings.WithComma)
        Refuse(line.Number, InQuotes(field) + " is not a number.");
      point = point && readings.WithPoint;
      comma = comma && readings.WithComma;
      if (!point && !comma)
        Refuse(line.Number, InQuotes(field) + " has another decimal sign than the numbers before it.");
    }
  }
  for (const Line& line : lines) {
    for (const std::string& field : line.Fields) {
      const Readings readings(field);
      if (point && comma && readings.WithPoint != readings.WithComma)
        Refuse(line.Number, InQuotes(field) + " can be read as " + PlainNumberInLocale(*readings.WithPoint) +
                                " and as " + PlainNumberInLocale(*readings.WithComma) + ".");
    }
  }
  return point ? DecimalPoint : DecimalComma;
}

/// The same digits in the user's locale, without groups.
std::string Respelled(const std::string& field, const NumberLocale& locale) {
  std::string spelled;
  for (std::string_view rest = field; !rest.empty();) {
    const std::size_t skipped =
        std::max(GroupSeparatorLength(rest, locale), GroupSeparatorLength(rest, {"", GroupSpace}));
    if (skipped == 0 && rest.starts_with(locale.DecimalSign)) {
      spelled += CurrentNumberLocale().DecimalSign;
    } else if (skipped == 0) {
      spelled += rest.front();
    }
    rest.remove_prefix(std::max<std::size_t>(skipped, 1));
  }
  return spelled;
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

IrregTable::Table Parse(std::string_view bytes) {
  const std::string text = DecodedText(bytes);
  const char separator = SeparatorOf(text);
  std::vector<Line> lines = SplitLines(text, separator);
  if (!lines.empty() && IsHead(lines.front())) lines.erase(lines.begin());
  if (lines.empty()) throw std::runtime_error("There are no points in the file.");
  if (lines.size() > IrregTable::Rows) {
    Refuse(lines[IrregTable::Rows].Number,
           "More than the " + std::to_string(IrregTable::Rows) + " points that the table holds.");
  }
  for (const Line& line : lines) CheckFields(line);
  const NumberLocale locale = LocaleOf(lines, separator);
  IrregTable::Table table;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::vector<std::string>& fields = lines[i].Fields;
    std::ranges::transform(fields, std::next(table[i + 1].begin()),
                           [&](const std::string& field) { return Respelled(field, locale); });
  }
  return table;
}

std::string Format(const IrregTable::Table& table) {
  const bool decimalComma = CurrentNumberLocale().DecimalSign == ",";
  const std::string separator = decimalComma ? ";" : ",";
  const auto line = [&](const std::string& station, const std::string& elevation, const std::string& n) {
    return station + separator + elevation + separator + n + "\r\n";
  };
  std::string text = line("Station", "Elevation", "n");
  for (int row = 1; row <= IrregTable::PointCount(table); ++row) {
    const auto& point = table[static_cast<std::size_t>(row)];
    text += line(Spelled(point[1], decimalComma), Spelled(point[2], decimalComma),
                 Spelled(point[3], decimalComma));
  }
  return text;
}

}  // namespace PointsCsv

// HEC-RAS geometry; see ModelFiles.h.
#include <algorithm>

#include "section/ModelFiles.h"
#include "section/Spelling.h"

namespace Survey {

namespace {

constexpr std::size_t FieldWidth = 8;

/// The text in lines, each known by its number.
class Lines {
 public:
  explicit Lines(std::string_view text) : rest_(text) {}
  bool Next() {
    if (rest_.empty()) return false;
    line_ = TakeLine(rest_);
    ++number_;
    return true;
  }
  std::string_view Text() const { return line_; }
  std::size_t Number() const { return number_; }

 private:
  std::string_view rest_, line_;
  std::size_t number_ = 0;
};

Number NumberAt(std::string_view field, std::size_t line, std::size_t column) {
  field = Trimmed(field);
  const auto value = ValueOf(field, ModelSpelling);
  if (!value) Refuse(line, column, InQuotes(field) + " is not a number.");
  return {*value, field};
}

/// The `count` numbers in the fields of the lines that follow, `perLine` on each but the last.
std::vector<Number> ReadFields(Lines& lines, std::size_t count, std::size_t perLine) {
  std::vector<Number> numbers;
  const std::size_t head = lines.Number();
  while (numbers.size() < count) {
    if (!lines.Next())
      Refuse(head, 0, "The file ends before the " + std::to_string(count) + " numbers announced here.");
    const std::size_t fields = std::min(perLine, count - numbers.size());
    const std::string_view line = lines.Text();
    for (std::size_t i = 0; i < fields; ++i) {
      // A shorter field may have lost digits.
      if (line.size() < (i + 1) * FieldWidth) Refuse(lines.Number(), i + 1, "The line is cut off.");
      numbers.push_back(NumberAt(line.substr(i * FieldWidth, FieldWidth), lines.Number(), i + 1));
    }
    if (!Trimmed(line.substr(fields * FieldWidth)).empty())
      Refuse(lines.Number(), fields + 1,
             "There are more numbers than line " + std::to_string(head) + " announces.");
  }
  return numbers;
}

/// What stands behind "key =", between commas; words may stand before the sign.
std::optional<std::vector<std::string_view>> ValuesOf(std::string_view line, std::string_view key) {
  const std::size_t sign = line.find('=');
  if (!line.starts_with(key) || sign == std::string_view::npos) return std::nullopt;
  std::vector<std::string_view> values;
  for (std::string_view rest = line.substr(sign + 1); !rest.empty();) {
    const std::size_t end = std::min(rest.find(','), rest.size());
    values.push_back(Trimmed(rest.substr(0, end)));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return values;
}

/// A whole number from 1 on, few enough to be a section's.
std::size_t CountIn(const std::vector<std::string_view>& values, std::size_t line) {
  constexpr double most = 1e6;
  const std::string_view text = values.empty() ? "" : values[0];
  const double count = NumberAt(text, line, 0).Value;
  if (!(count >= 1 && count <= most) || count != static_cast<double>(static_cast<std::size_t>(count)))
    Refuse(line, 0, InQuotes(text) + " is not a number of points.");
  return static_cast<std::size_t>(count);
}

void ReadPoints(Lines& lines, std::size_t count, Section& section) {
  const std::size_t head = lines.Number();
  const std::vector<Number> numbers = ReadFields(lines, 2 * count, 10);
  for (std::size_t i = 0; i < count; ++i)
    section.Points.push_back({numbers[2 * i], numbers[2 * i + 1], std::nullopt, head + 1 + i / 5});
}

void ReadBreaks(Lines& lines, std::size_t count, Section& section) {
  const std::size_t head = lines.Number();
  const std::vector<Number> numbers = ReadFields(lines, 3 * count, 9);
  for (std::size_t i = 0; i < count; ++i)
    section.Breaks.push_back({numbers[3 * i].Value, numbers[3 * i + 1], head + 1 + i / 3});
}

}  // namespace

std::vector<Section> HecRasSections(std::string_view text) {
  std::vector<Section> sections;
  std::size_t numbersEnd = 0;  // the last line of the numbers read last
  for (Lines lines(text); lines.Next();) {
    const std::string_view line = lines.Text();
    if (const auto head = ValuesOf(line, "Type RM Length")) {
      Section& section = sections.emplace_back();
      section.Name = "River mile " + std::string(head->size() > 1 ? (*head)[1] : "?");
      section.Spelling = ModelSpelling;
      section.AsksUnit = true;
      continue;
    }
    if (sections.empty()) continue;
    Section& section = sections.back();
    if (const auto points = ValuesOf(line, "#Sta/Elev")) {
      if (!section.Points.empty()) Refuse(lines.Number(), 0, "The section has its points already.");
      ReadPoints(lines, CountIn(*points, lines.Number()), section);
      numbersEnd = lines.Number();
    } else if (const auto breaks = ValuesOf(line, "#Mann")) {
      ReadBreaks(lines, CountIn(*breaks, lines.Number()), section);
      numbersEnd = lines.Number();
    } else if (const auto banks = ValuesOf(line, "Bank Sta")) {
      for (const std::string_view bank : *banks)
        section.Banks.push_back(NumberAt(bank, lines.Number(), 0).Value);
    } else if (lines.Number() == numbersEnd + 1 && BeginsLikeNumber(Trimmed(line))) {
      Refuse(lines.Number(), 0, "There are more numbers here than the count before them announces.");
    }
  }
  // Bridges, weirs and the like have a head and no ground.
  std::erase_if(sections, [](const Section& section) { return section.Points.empty(); });
  return sections;
}

}  // namespace Survey

// See Sheet.h.
#include "section/Sheet.h"

#include <algorithm>

#include "files/TextEncoding.h"
#include "section/Spelling.h"

namespace Survey {

namespace {

/// Lines that are examined to distinguish commas from blanks: enough to meet every kind of line of a file.
constexpr int Sample = 1000;

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

/// The part of a text up to `end`, which is taken off.
std::string_view Take(std::string_view& text, std::size_t end) {
  const std::string_view taken = text.substr(0, end);
  text.remove_prefix(std::min(end, text.size()));
  return taken;
}

/// The text in quotes at the start of `rest`, which is taken off; doubled quotes inside stay as they are.
std::string_view TakeQuoted(std::string_view& rest, std::size_t line, std::size_t column) {
  std::size_t close = 1;
  while (close < rest.size() && (rest[close] != '"' || rest.substr(close).starts_with("\"\""))) {
    close += rest[close] == '"' ? 2 : 1;
  }
  if (close >= rest.size()) Refuse(line, column, "A quotation mark is not closed.");
  return Take(rest, close + 1).substr(1, close - 1);
}

/// Appends the fields of a line, up to the last that is not empty.
void Split(std::string_view rest, char separator, std::size_t line, std::vector<std::string_view>& fields) {
  const std::size_t first = fields.size();
  const auto isSeparator = [separator](char c) { return separator == Blanks ? IsBlank(c) : c == separator; };
  for (bool more = true; more;) {
    while (!rest.empty() && IsBlank(rest.front()) && (separator == Blanks || rest.front() != separator))
      rest.remove_prefix(1);
    std::string_view field;
    if (rest.starts_with('"')) field = TakeQuoted(rest, line, fields.size() - first + 1);
    const auto end =
        static_cast<std::size_t>(std::find_if(rest.begin(), rest.end(), isSeparator) - rest.begin());
    const std::string_view plain = Take(rest, end);
    fields.push_back(Trimmed(field.empty() ? plain : field));
    more = !rest.empty();
    if (more) rest.remove_prefix(1);
  }
  while (fields.size() > first && fields.back().empty()) fields.pop_back();
}

bool IsComment(std::string_view line) {
  return Trimmed(line).starts_with('#');
}

/// How many of the fields are numbers under one decimal sign or the other.
std::size_t NumbersIn(std::string_view line, char separator) {
  std::vector<std::string_view> fields;
  Split(line, separator, 0, fields);
  return static_cast<std::size_t>(std::ranges::count_if(fields, IsNumberOfSomeSign));
}

/// The separators that stand in the text outside quotes and comments.
struct Met {
  bool Tab = false, Semicolon = false;
};

Met SeparatorsIn(std::string_view text) {
  Met met;
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    if (IsComment(line)) continue;
    bool quoted = false;
    for (const char c : Trimmed(line)) {
      quoted = quoted != (c == '"');
      met.Tab = met.Tab || (!quoted && c == '\t');
      met.Semicolon = met.Semicolon || (!quoted && c == ';');
    }
    if (met.Tab) break;
  }
  return met;
}

char SeparatorOf(std::string_view text) {
  const Met met = SeparatorsIn(text);
  if (met.Tab) return '\t';
  if (met.Semicolon) return ';';
  std::size_t byComma = 0;
  std::size_t byBlanks = 0;
  for (int i = 0; i < Sample && !text.empty(); ++i) {
    const std::string_view line = TakeLine(text);
    if (IsComment(line) || line.find('"') != std::string_view::npos) continue;
    byComma += NumbersIn(line, ',');
    byBlanks += NumbersIn(line, Blanks);
  }
  return byBlanks > byComma ? Blanks : ',';
}

/// A head whose units have fields of their own ("Station, ft" between commas, "Station (ft)" between blanks):
/// they join the caption before them.
void JoinUnits(std::vector<std::string>& head, std::size_t columns) {
  for (std::size_t i = 1; i < head.size() && head.size() > columns;) {
    if (IsUnitName(head[i])) {
      head[i - 1] += " " + head[i];
      head.erase(head.begin() + static_cast<std::ptrdiff_t>(i));
    } else {
      ++i;
    }
  }
}

/// The leading rows without a number become the head and notes; a row of units below the head joins it.
void TakeHead(Sheet& sheet) {
  const auto isText = [&](const Sheet::Row& row) {
    return std::ranges::none_of(sheet.FieldsOf(row), BeginsLikeNumber);
  };
  const auto data = std::ranges::find_if_not(sheet.Rows, isText);
  if (data == sheet.Rows.begin()) return;
  const auto isUnits = [&](const Sheet::Row& row) {
    return std::ranges::any_of(sheet.FieldsOf(row), IsUnitName) &&
           std::ranges::all_of(sheet.FieldsOf(row), [](std::string_view field) {
             return field.empty() || field == "-" || IsUnitName(field);
           });
  };
  const bool unitsBelow = data - sheet.Rows.begin() > 1 && isUnits(*std::prev(data));
  const auto head = std::prev(data, unitsBelow ? 2 : 1);
  for (const std::string_view caption : sheet.FieldsOf(*head)) sheet.Head.emplace_back(caption);
  for (std::size_t i = 0; unitsBelow && i < sheet.Head.size(); ++i)
    sheet.Head[i] += " " + std::string(sheet.Field(*std::prev(data), i));
  for (auto title = sheet.Rows.begin(); title != head; ++title) {
    sheet.Notes.push_back("Line " + std::to_string(title->Line) +
                          " is a title and was left out: " + InQuotes(sheet.Field(*title, 0)) + ".");
  }
  sheet.Rows.erase(sheet.Rows.begin(), data);
}

/// Sets the number of columns. A number behind the last column of the head would be lost without a word.
void CheckWidth(Sheet& sheet) {
  for (const Sheet::Row& row : sheet.Rows) sheet.Columns = std::max(sheet.Columns, row.Count);
  if (sheet.Head.empty()) return;
  JoinUnits(sheet.Head, sheet.Columns);
  const std::size_t columns = sheet.Head.size();
  for (const Sheet::Row& row : sheet.Rows) {
    for (std::size_t column = columns; column < row.Count; ++column) {
      if (BeginsLikeNumber(sheet.Field(row, column))) {
        Refuse(row.Line, column + 1,
               InQuotes(sheet.Field(row, column)) + " stands behind the last column of the head.");
      }
    }
  }
  sheet.Head.resize(std::max(columns, sheet.Columns));
  sheet.Columns = sheet.Head.size();
}

}  // namespace

std::shared_ptr<const std::string> SurveyText(std::string_view bytes) {
  return std::make_shared<const std::string>(IsUtf16(bytes) ? FromUtf16(bytes) : DecodedText(bytes));
}

bool BeginsLikeNumber(std::string_view field) {
  const std::size_t first = field.find_first_not_of("+-.,");
  return first != std::string_view::npos && field[first] >= '0' && field[first] <= '9';
}

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view spaces[] = {" ", "\t", "\u00A0", "\u202F"};
  for (bool more = true; more;) {
    more = false;
    for (const std::string_view space : spaces) {
      if (text.starts_with(space)) {
        text.remove_prefix(space.size());
        more = true;
      } else if (text.ends_with(space)) {
        text.remove_suffix(space.size());
        more = true;
      }
    }
  }
  return text;
}

std::string_view TakeLine(std::string_view& text) {
  std::size_t end = 0;
  while (end < text.size() && text[end] != '\n' && text[end] != '\r') ++end;
  const std::string_view line = Take(text, end);
  text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, text.size()));
  return line;
}

Sheet ReadSheet(std::shared_ptr<const std::string> text, std::optional<char> separator, const Watch& watch) {
  Sheet sheet;
  sheet.Text = std::move(text);
  sheet.Separator = separator.value_or(SeparatorOf(*sheet.Text));
  std::size_t comments = 0;
  std::string_view rest = *sheet.Text;
  for (std::size_t line = 1; !rest.empty(); ++line) {
    const std::string_view each = TakeLine(rest);
    if (line % WatchEvery == 1)
      watch(1 - static_cast<double>(rest.size()) / static_cast<double>(sheet.Text->size()));
    if (IsComment(each)) {
      ++comments;
      continue;
    }
    const std::size_t first = sheet.Fields.size();
    Split(each, sheet.Separator, line, sheet.Fields);
    if (sheet.Fields.size() > first) sheet.Rows.push_back({line, first, sheet.Fields.size() - first});
  }
  if (comments > 0) sheet.Notes.push_back(Counted(comments, "comment line") + " left out.");
  TakeHead(sheet);
  if (sheet.Rows.empty()) throw std::runtime_error("There are no points in the file.");
  CheckWidth(sheet);
  return sheet;
}

}  // namespace Survey

// Which column of a survey is what: by the head, else by place.
#include <algorithm>
#include <array>

#include "section/Spelling.h"

namespace Survey {

namespace {

/// The words of a head, in lower case. Where one is a single letter, it names the column only as the first
/// word: further back it abbreviates something else.
constexpr std::pair<std::string_view, Role> RoleNames[] = {
    {"station", Role::Station},      {"stations", Role::Station}, {"sta", Role::Station},
    {"distance", Role::Station},     {"dist", Role::Station},     {"offset", Role::Station},
    {"chainage", Role::Station},     {"x", Role::Station},        {"elevation", Role::Elevation},
    {"elevations", Role::Elevation}, {"elev", Role::Elevation},   {"level", Role::Elevation},
    {"z", Role::Elevation},          {"height", Role::Elevation}, {"y", Role::Elevation},
    {"n", Role::ManningN},           {"manning", Role::ManningN}, {"mannings", Role::ManningN},
    {"roughness", Role::ManningN},
};

/// A name of a unit, whether it is metric, and its length in feet or metres.
struct UnitName {
  std::string_view Name;
  bool Metric;
  double Length;
};
constexpr UnitName UnitNames[] = {
    {"m", true, 1},      {"metre", true, 1},        {"metres", true, 1},         {"meter", true, 1},
    {"meters", true, 1}, {"ft", false, 1},          {"foot", false, 1},          {"feet", false, 1},
    {"km", true, 1000},  {"cm", true, 0.01},        {"mm", true, 0.001},         {"yd", false, 3},
    {"yards", false, 3}, {"inch", false, 1.0 / 12}, {"inches", false, 1.0 / 12},
};

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The words of a caption in lower case; an apostrophe belongs to its word and is dropped.
std::vector<std::string> WordsOf(std::string_view caption) {
  std::vector<std::string> words = {""};
  for (const char c : caption) {
    const char lower = Lower(c);
    const bool letter = (lower >= 'a' && lower <= 'z') || static_cast<unsigned char>(c) >= 0x80;
    if (letter) {
      words.back() += lower;
    } else if (c != '\'' && !words.back().empty()) {
      words.emplace_back();
    }
  }
  if (words.back().empty()) words.pop_back();
  return words;
}

const UnitName* UnitNamed(const std::string& word) {
  const auto* const found = std::ranges::find(UnitNames, word, &UnitName::Name);
  return found == std::end(UnitNames) ? nullptr : found;
}

}  // namespace

std::optional<std::size_t> Columns::Find(Role role) const {
  const auto found = std::ranges::find(Roles, role);
  if (found == Roles.end()) return std::nullopt;
  return static_cast<std::size_t>(found - Roles.begin());
}

bool IsUnitName(std::string_view text) {
  const std::vector<std::string> words = WordsOf(text);
  return words.size() == 1 && UnitNamed(words[0]) != nullptr;
}

Role RoleOf(std::string_view caption) {
  const std::vector<std::string> words = WordsOf(caption);
  for (std::size_t i = 0; i < words.size(); ++i) {
    const auto* const found =
        std::ranges::find(RoleNames, words[i], &std::pair<std::string_view, Role>::first);
    if (found != std::end(RoleNames) && (i == 0 || words[i].size() > 1)) return found->second;
  }
  return Role::Ignored;
}

std::optional<LengthUnit> UnitOf(std::string_view caption) {
  const std::vector<std::string> words = WordsOf(caption);
  for (std::size_t i = 1; i < words.size(); ++i) {  // the first word names the column
    const UnitName* const unit = UnitNamed(words[i]);
    if (unit == nullptr) continue;
    const LengthUnit base = unit->Metric ? Metres() : Feet();
    return LengthUnit{unit->Length == 1 ? base.Name : words[i], unit->Length * base.Feet};
  }
  return std::nullopt;
}

Columns ColumnsByPlace(const Sheet& sheet) {
  std::vector<bool> numbers(sheet.Columns);
  for (const Sheet::Row& row : sheet.Rows) {
    for (std::size_t column = 0; column < std::min(row.Count, sheet.Columns); ++column)
      numbers[column] = numbers[column] || BeginsLikeNumber(sheet.Field(row, column));
  }
  constexpr std::array order = {Role::Station, Role::Elevation, Role::ManningN};
  Columns columns{std::vector(sheet.Columns, Role::Ignored),
                  std::vector<std::optional<LengthUnit>>(sheet.Columns)};
  if (std::ranges::count(numbers, true) > static_cast<std::ptrdiff_t>(order.size())) return columns;
  std::size_t next = 0;
  for (std::size_t column = 0; column < sheet.Columns; ++column) {
    if (numbers[column]) columns.Roles[column] = order.at(next++);
    if (column < sheet.Head.size()) columns.Units[column] = UnitOf(sheet.Head[column]);
  }
  return columns;
}

Columns ColumnsByHead(const Sheet& sheet) {
  if (sheet.Head.empty()) return ColumnsByPlace(sheet);
  Columns columns;
  for (const std::string& caption : sheet.Head) {
    columns.Roles.push_back(RoleOf(caption));
    columns.Units.push_back(UnitOf(caption));
  }
  for (const Role role : {Role::Station, Role::Elevation, Role::ManningN}) {
    if (std::ranges::count(columns.Roles, role) > 1) std::ranges::replace(columns.Roles, role, Role::Ignored);
  }
  return columns;
}

}  // namespace Survey

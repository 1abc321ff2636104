// The numbers of a survey: their decimal sign, their values and their digits.
#include "section/Spelling.h"

#include <algorithm>
#include <charconv>

namespace Survey {

const NumberLocale DecimalPoint{".", ","};
const NumberLocale DecimalComma{",", "."};

namespace {

const std::string GroupSpace = "\u202F";  // beside either sign; the other spaces count as well

/// The fields of a sheet that hold its numbers, until `visit` returns false.
template <class Visit>
void ForEachNumber(const Sheet& sheet, const Columns& columns, Visit visit) {
  for (const Sheet::Row& row : sheet.Rows) {
    for (const Role role : {Role::Station, Role::Elevation, Role::ManningN}) {
      const auto column = columns.Find(role);
      const std::string_view field = column ? sheet.Field(row, *column) : std::string_view();
      if (!field.empty() && !visit(field, role)) return;
    }
  }
}

bool IsSpecialFree(std::string_view field) {
  return std::ranges::all_of(field, [](char c) { return (c >= '0' && c <= '9') || c == '.' || c == '-'; });
}

/// What the numbers of a sheet allow, taken together.
struct Evidence {
  bool Point = true, Comma = true;
  std::string TwoWays[2];  ///< the first that may be thousands and has a point, and that has a comma
};

Evidence EvidenceOf(const Sheet& sheet, const Columns& columns) {
  Evidence evidence;
  bool commaSeen = sheet.Separator != ',';
  ForEachNumber(sheet, columns, [&](std::string_view field, Role role) {
    const bool comma = field.find(',') != std::string_view::npos;
    commaSeen = commaSeen || comma;
    if (!comma && field.find('.') == std::string_view::npos) return true;
    const auto withPoint = ValueOf(field, DecimalPoint);
    const auto withComma = ValueOf(field, DecimalComma);
    if (!withPoint && !withComma) return true;  // no number: reported where it is read
    evidence.Point = evidence.Point && withPoint;
    evidence.Comma = evidence.Comma && withComma;
    std::string& first = evidence.TwoWays[comma ? 1 : 0];
    if (role != Role::ManningN && first.empty() &&
        MayBeThousands(field, comma ? DecimalComma : DecimalPoint)) {
      first = field;
    }
    return evidence.Point && evidence.Comma;
  });
  // Where commas separate the fields, only one in quotes can be part of a number.
  evidence.Comma = evidence.Comma && commaSeen;
  return evidence;
}

}  // namespace

std::optional<double> ValueOf(std::string_view field, const NumberLocale& spelling) {
  if (spelling.DecimalSign == "." && IsSpecialFree(field)) {
    double value = 0;
    const auto read = std::from_chars(field.data(), field.data() + field.size(), value);
    if (read.ec == std::errc{} && read.ptr == field.data() + field.size()) return value;
  }
  const std::optional<double> value = NumericValue(field, spelling);
  return value ? value : NumericValue(field, {spelling.DecimalSign, GroupSpace});
}

bool MayBeThousands(std::string_view field, const NumberLocale& spelling) {
  const std::size_t at = field.find(spelling.DecimalSign);
  return at != std::string_view::npos && at == field.rfind(spelling.DecimalSign) &&
         field.find_last_of("0123456789") == at + spelling.DecimalSign.size() + 2 && ValueOf(field, spelling);
}

bool IsNumberOfSomeSign(std::string_view field) {
  return ValueOf(field, DecimalPoint) || ValueOf(field, DecimalComma);
}

Sign SignOf(const Sheet& sheet, const Columns& columns) {
  const Evidence evidence = EvidenceOf(sheet, columns);
  const bool ownComma = CurrentNumberLocale().DecimalSign == ",";
  // A text that is neither throughout has numbers of both kinds; the first of the other kind is reported as
  // it is read.
  if (!evidence.Comma || !evidence.Point)
    return {evidence.Point || !evidence.Comma ? DecimalPoint : DecimalComma, ""};
  const std::string& own = evidence.TwoWays[ownComma ? 1 : 0];
  const std::string& other = evidence.TwoWays[ownComma ? 0 : 1];
  if (!own.empty() || other.empty()) return {ownComma ? DecimalComma : DecimalPoint, ""};
  const NumberLocale& asSign = ownComma ? DecimalPoint : DecimalComma;
  const bool groups = CurrentNumberLocale().GroupSeparator == asSign.DecimalSign;
  return {asSign, groups ? other : ""};
}

namespace {

/// Reads the numbers of one role.
class Reader {
 public:
  Reader(const Sheet& sheet, const Columns& columns, Role role, const NumberLocale& spelling)
      : sheet_(sheet), column_(columns.Find(role)), spelling_(spelling) {}

  bool Has(const Sheet::Row& row) const { return column_ && !sheet_.Field(row, *column_).empty(); }

  Number Read(const Sheet::Row& row) const {
    const std::string_view field = sheet_.Field(row, *column_);
    const auto value = ValueOf(field, spelling_);
    if (!value) {
      const bool otherSign = IsNumberOfSomeSign(field);
      Refuse(row.Line, *column_ + 1,
             InQuotes(field) +
                 (otherSign ? " has another decimal sign than the other numbers." : " is not a number."));
    }
    return {*value, field};
  }

  Number Need(const Sheet::Row& row, const std::string& what) const {
    if (!Has(row)) Refuse(row.Line, *column_ + 1, what + " is missing.");
    return Read(row);
  }

 private:
  const Sheet& sheet_;
  std::optional<std::size_t> column_;
  const NumberLocale& spelling_;
};

}  // namespace

Section SectionOf(const Sheet& sheet, const Columns& columns, const NumberLocale& spelling,
                  const Watch& watch) {
  for (const auto& [role, name] : {std::pair(Role::Station, "station"), {Role::Elevation, "elevation"}}) {
    if (!columns.Find(role))
      throw std::runtime_error(std::string("No column is known as the ") + name +
                               ": choose it in the lists.");
  }
  const Reader stations(sheet, columns, Role::Station, spelling);
  const Reader elevations(sheet, columns, Role::Elevation, spelling);
  const Reader roughness(sheet, columns, Role::ManningN, spelling);
  Section section;
  section.Spelling = spelling;
  section.XUnit = columns.Units[*columns.Find(Role::Station)];
  section.ZUnit = columns.Units[*columns.Find(Role::Elevation)];
  section.StationColumn = *columns.Find(Role::Station) + 1;
  section.Points.reserve(sheet.Rows.size());
  std::size_t others = 0;  // rows of other columns alone are no points: remarks, for example
  for (const Sheet::Row& row : sheet.Rows) {
    const auto done = static_cast<std::size_t>(&row - sheet.Rows.data());
    if (done % WatchEvery == 0) watch(static_cast<double>(done) / static_cast<double>(sheet.Rows.size()));
    if (!stations.Has(row) && !elevations.Has(row) && !roughness.Has(row)) {
      ++others;
      continue;
    }
    Point& point = section.Points.emplace_back();
    point.Line = row.Line;
    point.X = stations.Need(row, "The station");
    point.Z = elevations.Need(row, "The elevation");
    if (roughness.Has(row)) point.N = roughness.Read(row);
  }
  if (others > 0) section.Notes.push_back(Counted(others, "row") + " without a point left out.");
  return section;
}

std::string SpelledForUser(const Number& number, const NumberLocale& spelling) {
  if (number.Typed.empty()) return PlainNumberInLocale(number.Value);
  std::string spelled;
  for (std::string_view rest = number.Typed; !rest.empty();) {
    const std::size_t skipped =
        std::max(GroupSeparatorLength(rest, spelling), GroupSeparatorLength(rest, {"", GroupSpace}));
    if (skipped == 0 && rest.starts_with(spelling.DecimalSign)) {
      spelled += CurrentNumberLocale().DecimalSign;
    } else if (skipped == 0) {
      spelled += rest.front();
    }
    rest.remove_prefix(std::max<std::size_t>(skipped, 1));
  }
  return spelled;
}

}  // namespace Survey

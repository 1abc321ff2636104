// See IrregTable.h.
#include "section/IrregTable.h"

#include <algorithm>

#include "app/FormStuff.h"
#include "engine/NumberText.h"

namespace IrregTable {

namespace {

constexpr std::pair<Fault, std::string_view> Messages[] = {
    {Fault::TooFewRows, "Must have at least two rows of data."},
    {Fault::NoManningN, "Must have at least one Manning's n."},
    {Fault::NotNumeric, "All data must be numeric."},
    {Fault::Gap, "Remove gaps in the data."},
    {Fault::NotAscending, "Stations need to be in ascending order."},
    {Fault::NoPartner, "Each station must have a corresponding elevation."},
};

/// A walk over the cells of a table in the order in which they are judged.
class Check {
 public:
  explicit Check(const Table& table) : table_(table) {}

  std::optional<Failure> Run() {
    std::optional<Failure> failure = FirstRow();
    if (!failure) failure = SecondRow();
    for (int row = 3; row <= Rows && !failure; ++row) failure = LaterRow(row);
    return failure;
  }

 private:
  using Result = std::optional<Failure>;

  const std::string& Text(int row, int column) const { return table_[Index(row)][Index(column)]; }
  bool Blank(int row, int column) const { return Text(row, column).empty(); }
  bool Numeric(int row, int column) const { return IsNumeric(Text(row, column)); }
  bool Above(double least, int row, int column) const {
    return FormStuff::CheckRange(Text(row, column), least, false, {}, false, false);
  }
  bool AboveStationBefore(int row) const {
    return Above(LeadingNumber(Text(row - 1, Station)), row, Station);
  }
  bool WrongN(int row) const { return !Blank(row, ManningN) && !Above(0, row, ManningN); }

  Result FirstRow() const {
    for (const int column : {Station, Elevation}) {
      if (Blank(1, column)) return Failure{Fault::TooFewRows, 1, column};
    }
    for (const int column : {Station, Elevation}) {
      if (!Numeric(1, column)) return Failure{Fault::NotNumeric, 1, column};
    }
    if (!Above(0, 1, ManningN)) return Failure{Fault::NoManningN, 1, ManningN};
    return std::nullopt;
  }

  Result SecondRow() const {
    if (Blank(2, Station)) return Failure{Fault::TooFewRows, 2, Station};
    if (!Numeric(2, Station)) return Failure{Fault::NotNumeric, 2, Station};
    if (!AboveStationBefore(2)) return Failure{Fault::NotAscending, 2, Station};
    if (Blank(2, Elevation)) return Failure{Fault::TooFewRows, 2, Elevation};
    if (!Numeric(2, Elevation)) return Failure{Fault::NotNumeric, 2, Elevation};
    if (WrongN(2)) return Failure{Fault::NotNumeric, 2, ManningN};
    return std::nullopt;
  }

  /// Stations and elevations may end, but only together and for good.
  Result LaterRow(int row) {
    const bool hasStation = !Blank(row, Station);
    if (hasStation && stationsEnded_) return Failure{Fault::Gap, row, Station};
    if (hasStation && !AboveStationBefore(row)) return Failure{Fault::NotAscending, row, Station};
    stationsEnded_ = !hasStation;

    const bool hasElevation = !Blank(row, Elevation);
    if (hasElevation && elevationsEnded_) return Failure{Fault::Gap, row, Elevation};
    if (hasElevation && !Numeric(row, Elevation)) return Failure{Fault::NotNumeric, row, Elevation};
    elevationsEnded_ = !hasElevation;

    if (WrongN(row)) return Failure{Fault::NotNumeric, row, ManningN};
    if (stationsEnded_ != elevationsEnded_)
      return Failure{Fault::NoPartner, row, stationsEnded_ ? Station : Elevation};
    return std::nullopt;
  }

  const Table& table_;
  bool stationsEnded_ = false;
  bool elevationsEnded_ = false;
};

}  // namespace

std::optional<Failure> CheckTable(const Table& table) {
  return Check(table).Run();
}

std::string_view MessageOf(Fault fault) {
  return std::ranges::find(Messages, fault, &std::pair<Fault, std::string_view>::first)->second;
}

void InsertRow(Table& table, int row) {
  std::shift_right(table.begin() + row, table.end(), 1);
  table[Index(row)] = {};
}

void DeleteRow(Table& table, int row) {
  std::shift_left(table.begin() + row, table.end(), 1);
  table.back() = {};
}

int PointCount(const Table& table) {
  const auto first = std::next(table.begin());
  const auto end = std::find_if(first, table.end(), [](const auto& row) { return row[Station].empty(); });
  return static_cast<int>(end - first);
}

}  // namespace IrregTable

// The table in which a surveyed section is entered, as texts: which tables are accepted, and how rows move.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace IrregTable {

inline constexpr int Rows = 100;
inline constexpr int Station = 1, Elevation = 2, ManningN = 3;

/// The points as typed, by (row, column): rows 1 to 100, columns 1 station, 2 elevation, 3 Manning's n. Row 0
/// and column 0 are unused.
using Table = std::array<std::array<std::string, 4>, Rows + 1>;

/// Of a row or column of the grid in the table.
constexpr std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

/// What is wrong with a table. The numbers are those by which the messages are known.
enum class Fault {
  TooFewRows = 1000,
  NoManningN = 1001,
  NotNumeric = 1002,
  Gap = 1003,
  NotAscending = 1004,
  NoPartner = 1005
};

/// The first fault, and the cell that shows it.
struct Failure {
  Fault Code;
  int Row, Column;
  bool operator==(const Failure&) const = default;
};

/// The first failure of the table, row by row; nothing when it is accepted: at least two points, stations
/// strictly ascending, an elevation for each, an n above 0 in row 1 and wherever there is one, and no gap.
std::optional<Failure> CheckTable(const Table& table);

/// The failure in words.
std::string_view MessageOf(Fault fault);

/// Puts an empty row in the place of `row` (1 to 100); what stood in row 100 is lost.
void InsertRow(Table& table, int row);

/// Takes `row` (1 to 100) out; row 100 becomes empty.
void DeleteRow(Table& table, int row);

/// The number of rows from the first up to the one before the first blank station.
int PointCount(const Table& table);

}  // namespace IrregTable

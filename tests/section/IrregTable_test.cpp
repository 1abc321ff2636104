// Which point tables are accepted, under a decimal point and a decimal comma, and how rows move.
#include "section/IrregTable.h"

#include <gtest/gtest.h>

#include "support/LocaleTest.h"

namespace {

using IrregTable::CheckTable;
using IrregTable::Failure;
using IrregTable::Fault;
using IrregTable::Table;

struct Cell {
  int Row, Column;
  const char* Text;
};

class PointTableRules : public LocaleTest {
 protected:
  static void Put(Table& table, const Cell& cell) {
    table[static_cast<std::size_t>(cell.Row)][static_cast<std::size_t>(cell.Column)] = Spelled(cell.Text);
  }

  /// Four points, some cells of them replaced.
  static Table FourPointsWith(std::initializer_list<Cell> cells) {
    Table table;
    table[1] = {"", "0", "10", Spelled("0.03")};
    table[2] = {"", Spelled("2.5"), "8", ""};
    table[3] = {"", "5", Spelled("8.25"), Spelled("0.05")};
    table[4] = {"", "9", "10", ""};
    for (const Cell& cell : cells) Put(table, cell);
    return table;
  }
};

TEST_P(PointTableRules, TheFirstFailureIsTold) {
  struct Case {
    std::initializer_list<Cell> Cells;
    std::optional<Failure> Expected;
  };
  const Case cases[] = {
      {{}, {}},
      {{{1, 1, ""}, {1, 2, "x"}}, {{Fault::TooFewRows, 1, 1}}},
      {{{1, 1, "x"}, {1, 2, ""}}, {{Fault::TooFewRows, 1, 2}}},
      {{{1, 1, "x"}, {1, 2, "x"}, {1, 3, ""}}, {{Fault::NotNumeric, 1, 1}}},
      {{{1, 1, " "}}, {{Fault::NotNumeric, 1, 1}}},
      {{{1, 2, "10 ft"}, {1, 3, ""}}, {{Fault::NotNumeric, 1, 2}}},
      {{{1, 3, ""}, {2, 1, ""}}, {{Fault::NoManningN, 1, 3}}},
      {{{1, 3, "0"}}, {{Fault::NoManningN, 1, 3}}},
      {{{1, 3, "abc"}}, {{Fault::NoManningN, 1, 3}}},
      {{{2, 1, ""}, {2, 2, "x"}}, {{Fault::TooFewRows, 2, 1}}},
      {{{2, 1, "x"}, {2, 2, ""}}, {{Fault::NotNumeric, 2, 1}}},
      {{{2, 1, "0"}, {2, 2, ""}}, {{Fault::NotAscending, 2, 1}}},
      {{{2, 1, "0.000001"}}, {}},
      {{{2, 2, ""}, {2, 3, "x"}}, {{Fault::TooFewRows, 2, 2}}},
      {{{2, 2, "x"}, {2, 3, "x"}}, {{Fault::NotNumeric, 2, 2}}},
      {{{2, 3, "-1"}, {3, 1, "x"}}, {{Fault::NotNumeric, 2, 3}}},
      {{{3, 1, "x"}, {3, 2, "x"}}, {{Fault::NotAscending, 3, 1}}},
      {{{3, 1, "2.5"}}, {{Fault::NotAscending, 3, 1}}},
      {{{3, 2, "x"}, {3, 3, "x"}}, {{Fault::NotNumeric, 3, 2}}},
      {{{3, 3, "0"}}, {{Fault::NotNumeric, 3, 3}}},
      {{{4, 2, ""}}, {{Fault::NoPartner, 4, 2}}},
      {{{4, 2, ""}, {4, 3, "x"}}, {{Fault::NotNumeric, 4, 3}}},
      {{{4, 1, ""}}, {{Fault::NoPartner, 4, 1}}},
      {{{3, 1, ""}, {3, 2, ""}}, {{Fault::Gap, 4, 1}}},
      {{{6, 1, "12"}, {6, 2, "9"}}, {{Fault::Gap, 6, 1}}},
      {{{6, 2, "9"}}, {{Fault::Gap, 6, 2}}},
      {{{100, 3, "abc"}}, {{Fault::NotNumeric, 100, 3}}},
      {{{7, 3, "0.04"}}, {}},
      {{{4, 1, "1,009"}, {4, 2, "1e3"}}, {}},
      {{{2, 1, "1,009"}}, {{Fault::NotAscending, 3, 1}}},
  };
  for (const Case& each : cases) {
    const auto failure = CheckTable(FourPointsWith(each.Cells));
    EXPECT_EQ(failure, each.Expected) << "case " << &each - cases;
  }
  EXPECT_EQ(CheckTable({}), (Failure{Fault::TooFewRows, 1, 1}));
}

TEST_P(PointTableRules, AHundredPointsAreAcceptedAndCounted) {
  Table table;
  for (int row = 1; row <= IrregTable::Rows; ++row) {
    Put(table, {row, IrregTable::Station, std::to_string(row).c_str()});
    Put(table, {row, IrregTable::Elevation, "5"});
  }
  EXPECT_EQ(CheckTable(table)->Code, Fault::NoManningN);
  Put(table, {1, IrregTable::ManningN, "0.03"});
  EXPECT_EQ(CheckTable(table), std::nullopt);
  EXPECT_EQ(IrregTable::PointCount(table), 100);
  EXPECT_EQ(IrregTable::PointCount({}), 0);
  Put(table, {100, IrregTable::Station, "99"});
  EXPECT_EQ(CheckTable(table), (Failure{Fault::NotAscending, 100, 1}));
}

INSTANTIATE_LOCALES(PointTableRules);

TEST(PointTableRows, MoveWithoutTouchingThoseAbove) {
  Table table;
  for (std::size_t row = 1; row <= 100; ++row) table[row][1] = std::to_string(row);
  IrregTable::InsertRow(table, 99);
  EXPECT_EQ(table[98][1], "98");
  EXPECT_EQ(table[99][1], "");
  EXPECT_EQ(table[100][1], "99");
  IrregTable::DeleteRow(table, 2);
  EXPECT_EQ(table[1][1], "1");
  EXPECT_EQ(table[2][1], "3");
  EXPECT_EQ(table[99][1], "99");
  EXPECT_EQ(table[100][1], "");
  IrregTable::InsertRow(table, 100);
  IrregTable::DeleteRow(table, 100);
  EXPECT_EQ(table[99][1], "99");
  IrregTable::InsertRow(table, 1);
  EXPECT_EQ(table[1][1], "");
  EXPECT_EQ(table[2][1], "1");
}

}  // namespace

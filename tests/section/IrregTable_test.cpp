// Which point tables are accepted, under a decimal point and a decimal comma.
#include "section/IrregTable.h"

#include <gtest/gtest.h>

#include "support/LocaleTest.h"

namespace {

using IrregTable::CheckTable;
using IrregTable::Failure;
using IrregTable::Fault;
using Texts = IrregTable::Table;

struct Cell {
  std::size_t Row, Column;
  const char* Text;
};

class PointTableRules : public LocaleTest {
 protected:
  /// Four points, some cells of them replaced.
  static Texts FourPointsWith(std::initializer_list<Cell> cells) {
    Texts table;
    table[1] = {"", "0", "10", Spelled("0.03")};
    table[2] = {"", Spelled("2.5"), "8", ""};
    table[3] = {"", "5", Spelled("8.25"), Spelled("0.05")};
    table[4] = {"", "9", "10", ""};
    for (const Cell& cell : cells) table[cell.Row][cell.Column] = Spelled(cell.Text);
    return table;
  }
};

TEST_P(PointTableRules, TheFirstFailureIsReported) {
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

INSTANTIATE_LOCALES(PointTableRules);

}  // namespace

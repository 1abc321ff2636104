// Points from and to the texts of spreadsheets and survey programs.
#include "section/PointsCsv.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/LocaleTest.h"

namespace {

using IrregTable::Table;

class PointLists : public LocaleTest {
 protected:
  static std::string RefusalOf(const std::string& text) {
    try {
      PointsCsv::Parse(text);
    } catch (const std::runtime_error& refusal) {
      return refusal.what();
    }
    return "accepted";
  }
};

TEST_P(PointLists, EverySpellingOfTheSamePointsIsRead) {
  const char* const texts[] = {
      "0,10.5,0.03\n1234.5,8,\n",
      "0,10.5,0.03\r\n1234.5,8",
      "0;10,5;0,03\r1234,5;8;\r",
      "0\t10.5\t0.03\n\n1,234.5\t8\t\n",
      "\xEF\xBB\xBFStation;Elev, m;n\n0; 10,5 ;0,03\n1.234,5;8\n;;\n",
      "\"Sta, ft\",\"Elev, ft\",n\n\"0\",10.5,0.03\n\"1,234.5\",8,,\n",
      "\"0\",\"10,5\",\"0,03\"\n\"1234,5\",\"8\"\n",
      "0;10,5;0,03\n1 234,5;8\n",
      "0;10,5;0,03\n1\u202F234,5;8\n",
      "0;10,5;0,03\n1\240234,5;8\n",  // Windows-1252
      "0,10.5,0.03\n1 234.5,8\n",
  };
  for (const char* const text : texts) {
    ASSERT_EQ(RefusalOf(text), "accepted") << text;
    const Table table = PointsCsv::Parse(text);
    EXPECT_EQ(table[1], (std::array<std::string, 4>{"", "0", Spelled("10.5"), Spelled("0.03")})) << text;
    EXPECT_EQ(table[2], (std::array<std::string, 4>{"", Spelled("1234.5"), "8", ""})) << text;
    EXPECT_EQ(IrregTable::PointCount(table), 2) << text;
  }
}

TEST_P(PointLists, WhatIsDoubtfulIsRefusedWithItsLine) {
  const std::pair<const char*, std::string> cases[] = {
      {"", "There are no points in the file."},
      {"Station,Elevation,n\n", "There are no points in the file."},
      {"0;1\n\n2;1,234\n",
       "Line 3: \"1,234\" can be read as " + Spelled("1234") + " and as " + Spelled("1.234") + "."},
      {"0;1\n2;1.234\n",
       "Line 2: \"1.234\" can be read as " + Spelled("1.234") + " and as " + Spelled("1234") + "."},
      {"0;0.5\n2;1,5\n", "Line 2: \"1,5\" has another decimal sign than the numbers before it."},
      {"0,5,10,2\n", "Line 1: A point is a station, an elevation and an n, and no more."},
      {"n\n0;1\n2;\n", "Line 3: A point needs a station and an elevation."},
      {"0;1\n;2\n", "Line 2: A point needs a station and an elevation."},
      {"12 m,10 m\n", "Line 1: \"12 m\" is not a number."},
      {"0,1\nx,2\n", "Line 2: \"x\" is not a number."},
      {"0;1\n1 23;2\n", "Line 2: \"1 23\" is not a number."},
      {"a,b\nc,d\n", "Line 2: \"c\" is not a number."},
      {"0,1e999\n", "Line 1: \"1e999\" is not a number."},
      {"\"0,1\n", "Line 1: A quotation mark is not closed."},
  };
  for (const auto& [text, refusal] : cases) EXPECT_EQ(RefusalOf(text), refusal) << text;
}

TEST_P(PointLists, OneClearNumberSettlesTheOthers) {
  EXPECT_EQ(PointsCsv::Parse("0;1,234;0,5\n")[1][2], Spelled("1.234"));
  EXPECT_EQ(PointsCsv::Parse("0;1,234;0.5\n")[1][2], "1234");
  EXPECT_EQ(PointsCsv::Parse("0,1.234\n")[1][2], Spelled("1.234")) << "its commas are separators";
  EXPECT_EQ(PointsCsv::Parse("1;2\n1e3;+4\n")[2][1], "1e3");
}

TEST_P(PointLists, MoreThanTheTableHoldsIsRefused) {
  std::string text = "Station,Elevation\n";
  for (int i = 1; i <= 100; ++i) text += std::to_string(i) + ",5\n";
  EXPECT_EQ(PointsCsv::Parse(text)[100][1], "100");
  EXPECT_EQ(RefusalOf(text + "101,5\n"), "Line 102: More than the 100 points that the table holds.");
}

TEST_P(PointLists, WhatIsExportedIsImportedTheSame) {
  Table table;
  table[1] = {"", "0", Spelled("1,609.344"), "1"};
  table[2] = {"", Spelled("1.234"), Spelled(" +10.50 "), ""};
  table[3] = {"", Spelled("2.345e2"), Spelled("-.5"), "2"};
  const std::string text = PointsCsv::Format(table);
  EXPECT_EQ(text, DecimalComma()
                      ? "Station;Elevation;n\r\n0;1609,3440;1\r\n1,2340;+10,50;\r\n2,3450e2;-,5;2\r\n"
                      : "Station,Elevation,n\r\n0,1609.344,1\r\n1.234,+10.50,\r\n2.345e2,-.5,2\r\n");
  const Table again = PointsCsv::Parse(text);
  for (std::size_t row = 1; row <= 4; ++row) {
    for (std::size_t column = 1; column <= 3; ++column)
      EXPECT_EQ(NumericValue(again[row][column]), NumericValue(table[row][column])) << row << " " << column;
  }
}

INSTANTIATE_LOCALES(PointLists);

}  // namespace

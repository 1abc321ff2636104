// Numbers as people type them, under a point locale, a comma locale and one that groups with no-break spaces.
#include "engine/NumberText.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "engine/EngineValue.h"

namespace {

const NumberLocale Point{".", ","};
const NumberLocale Comma{",", "."};
const NumberLocale French{",", "\u202F"};
const NumberLocale NoBreak{",", "\u00A0"};
const NumberLocale Ungrouped{".", ""};

class NumberText : public testing::Test {
 protected:
  ~NumberText() override { SetNumberLocale({}); }
};

struct Reading {
  std::string text;
  bool numeric;
  double leading;
};

void ExpectReadings(const NumberLocale& locale, const std::vector<Reading>& readings) {
  SetNumberLocale(locale);
  for (const Reading& reading : readings) {
    EXPECT_EQ(IsNumeric(reading.text), reading.numeric) << '[' << reading.text << ']';
    EXPECT_EQ(LeadingNumber(reading.text), reading.leading) << '[' << reading.text << ']';
  }
}

TEST_F(NumberText, ReadsPlainForms) {
  ExpectReadings(
      Point, {{"", false, 0},        {" ", false, 0},         {"7", true, 7},      {" \t12.5\t ", true, 12.5},
              {".5", true, 0.5},     {"5.", true, 5},         {".", false, 0},     {"-.5", true, -0.5},
              {"+3", true, 3},       {"- 5", false, 0},       {"--5", false, 0},   {"5-", false, 5},
              {"1e3", true, 1000},   {"2.5E-2", true, 0.025}, {"1e", false, 1},    {"1e+", false, 1},
              {"1.5.2", false, 1.5}, {"12 m", false, 12},     {"1 234", false, 1}, {"007", true, 7},
              {"5\n", false, 5},     {"e5", false, 0},        {"abc", false, 0}});
}

TEST_F(NumberText, RefusesWhatIsNoDecimalNumber) {
  ExpectReadings(Point, {{"inf", false, 0},
                         {"nan", false, 0},
                         {"0x10", false, 0},
                         {"$5", false, 0},
                         {"1e999", false, 0},
                         {"-1e999 ft", false, 0},
                         {"1e99999999999999999999", false, 0},
                         {"1.8e308", false, 0}});
}

TEST_F(NumberText, TakesNumbersTooSmallForADoubleAsZero) {
  ExpectReadings(Point, {{"1e-999", true, 0},
                         {"1e-99999999999999999999", true, 0},
                         {"0e99999999999999999999", true, 0},
                         {"0.0000000001e-320", true, 0},
                         {"1000000000000000000000000000000e-400", true, 0}});
}

TEST_F(NumberText, JudgesTheSizeByDigitsAndExponentTogether) {
  const std::string zeros(400, '0');
  ExpectReadings(
      Point,
      {{"1" + zeros + "e-50", false, 0}, {"0." + zeros + "1e50", true, 0}, {"1" + zeros + "e-400", true, 1}});
}

TEST_F(NumberText, GroupsAreOfThree) {
  ExpectReadings(Point, {{"1,234", true, 1234},
                         {"12,345,678.5", true, 12345678.5},
                         {"-1,234.568", true, -1234.568},
                         {"1,234e2", true, 123400},
                         {"1,5", false, 1},
                         {"0,500", false, 0},
                         {"01,234", false, 1},
                         {"1,2345", false, 1},
                         {"1,234,5", false, 1234},
                         {"1234,567", false, 1234},
                         {",123", false, 0},
                         {"1,,234", false, 1},
                         {"1.234,567", false, 1.234},
                         {"1,234.", true, 1234}});
  ExpectReadings(Comma, {{"1.234", true, 1234},
                         {"1.234,5", true, 1234.5},
                         {"0,5", true, 0.5},
                         {",5", true, 0.5},
                         {"1.5", false, 1},
                         {"0.500", false, 0},
                         {"1,234.5", false, 1.234}});
  for (const NumberLocale& locale : {French, NoBreak}) {
    ExpectReadings(locale, {{"1" + locale.GroupSeparator + "234,5", true, 1234.5},
                            {"1 234,5", true, 1234.5},
                            {"1\u00A0234\u202F567,5", true, 1234567.5},
                            {"1.234,5", false, 1},
                            {"1 234 567", true, 1234567},
                            {"1 23", false, 1},
                            {"1  234", false, 1},
                            {"1 234 m", false, 1234},
                            {"1 2345", false, 1}});
  }
  ExpectReadings({",", " "}, {{"1\u00A0234,5", true, 1234.5}, {"1\u202F234", true, 1234}});
  ExpectReadings(Ungrouped, {{"1,234", false, 1}, {"1234", true, 1234}, {"1 234", false, 1}});
}

TEST_F(NumberText, RepairsALocaleThatNothingCouldBeReadIn) {
  SetNumberLocale({",", ","});
  EXPECT_EQ(LeadingNumber("1,234"), 1.234);
  SetNumberLocale({"", ","});
  EXPECT_EQ(LeadingNumber("1,234.5"), 1234.5);
}

TEST_F(NumberText, ReadsAMillionCharacters) {
  const std::string digits(1'000'000, '7');
  std::string groups = "1";
  for (int i = 0; i < 300'000; ++i) groups += ",000";
  const std::string tiny = "0." + std::string(1'000'000, '0') + "1";
  ExpectReadings(Point, {{digits, false, 0},
                         {groups, false, 0},
                         {tiny, true, 0},
                         {tiny + "e1000001", true, 1},
                         {digits + "e-999999", true, 7.777777777777777777},
                         {std::string(1'000'000, ' ') + "4", true, 4}});
}

TEST_F(NumberText, WhatIsWrittenPlainlyReadsBackTheSame) {
  std::mt19937_64 random(20);
  for (const NumberLocale& locale : {Point, Comma, French, Ungrouped}) {
    SetNumberLocale(locale);
    for (int i = 0; i < 5000; ++i) {
      const double wide = std::bit_cast<double>(random());
      const double common = static_cast<double>(static_cast<std::int64_t>(random() >> 20)) / 4096;
      for (const double x : {wide, common}) {
        if (!std::isfinite(x)) continue;
        const std::string text = PlainNumberInLocale(x);
        ASSERT_TRUE(IsNumeric(text)) << text;
        ASSERT_EQ(LeadingNumber(text), x) << text;
      }
    }
  }
}

TEST_F(NumberText, SpellsPlainly) {
  SetNumberLocale(Comma);
  const std::vector<std::pair<double, std::string>> spellings = {
      {0, "0"},           {-0.0, "0"},         {0.1, "0.1"},    {-1234567.25, "-1234567.25"},
      {1e-5, "0.00001"},  {9.9e-6, "9.9e-06"}, {1e15, "1e+15"}, {999999999999999, "999999999999999"},
      {100000, "100000"}, {5e-324, "5e-324"}};
  for (const auto& [number, text] : spellings) EXPECT_EQ(PlainNumber(number), text);
  EXPECT_EQ(PlainNumberInLocale(-1234567.25), "-1234567,25");
}

TEST_F(NumberText, ChecksumNumbersKnowNoLocale) {
  SetNumberLocale(Comma);
  const std::vector<std::pair<std::string, double>> items = {
      {"1.25", 1.25},     {"12 Main St", 12}, {"1 2\t3\n4", 1234},
      {"True", 0},        {"1,5", 1},         {"-.5e1", -5},
      {"1D2", 100},       {"2d1", 20},        {"", 0},
      {"1e999", 0},       {"&HFFFF", -1},     {"&hff", 255},
      {"&H8000", -32768}, {"&H10000", 65536}, {"&HFFFFFFFF", -1},
      {"& H D D", 0xDD},  {"&O17", 15},       {"&o177777", -1},
      {"&", 0},           {"&H", 0},          {"&Hxyz", 0},
      {"&H123456789", 0}, {"&H1Fish", 31}};
  for (const auto& [text, value] : items) EXPECT_EQ(Val(text), value) << '[' << text << ']';
}

TEST_F(NumberText, CellsReadAsNumbers) {
  static_assert(!std::is_constructible_v<EngineValue, bool>);
  SetNumberLocale(Comma);
  EXPECT_TRUE(EngineValue().IsEmptyText());
  EXPECT_EQ(EngineValue("1.234,5 ft").Number(), 1234.5);
  EXPECT_FALSE(EngineValue("1.234,5 ft").IsNumeric());
  EXPECT_TRUE(EngineValue("1.234,5").IsNumeric());
  EXPECT_EQ(EngineValue(2.5).Text(), "2,5");
  EXPECT_EQ(EngineValue(3).Number(), 3.0);
  EXPECT_EQ(EngineValue::False().Text(), "");
  EXPECT_EQ(EngineValue::False().Number(), 0);
  EXPECT_FALSE(EngineValue::False().IsNumeric());
  EXPECT_NE(EngineValue::False(), EngineValue());
}

}  // namespace

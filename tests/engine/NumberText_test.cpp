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

const NumberLocale DecimalPoint{".", ","};
const NumberLocale DecimalComma{",", "."};
const NumberLocale French{",", "\u202F"};
const NumberLocale NoBreak{",", "\u00A0"};
const NumberLocale Ungrouped{".", ""};

class NumberText : public testing::Test {
 protected:
  ~NumberText() override { SetNumberLocale({}); }
};

using Readings = std::vector<std::pair<std::string, double>>;

void ExpectNumbers(const NumberLocale& locale, const Readings& readings) {
  SetNumberLocale(locale);
  for (const auto& [text, value] : readings) {
    EXPECT_TRUE(IsNumeric(text)) << '[' << text << ']';
    EXPECT_EQ(LeadingNumber(text), value) << '[' << text << ']';
  }
}

/// Texts that are no numbers, with the number that they begin with.
void ExpectOthers(const NumberLocale& locale, const Readings& readings) {
  SetNumberLocale(locale);
  for (const auto& [text, leading] : readings) {
    EXPECT_FALSE(IsNumeric(text)) << '[' << text << ']';
    EXPECT_EQ(LeadingNumber(text), leading) << '[' << text << ']';
  }
}

TEST_F(NumberText, ReadsWhatIsTypedWithAPoint) {
  ExpectNumbers(DecimalPoint,
                {{"7", 7}, {" \t12.5\t ", 12.5}, {".5", 0.5}, {"5.", 5}, {"-.5", -0.5}, {"+3", 3}});
  ExpectNumbers(DecimalPoint,
                {{"1e3", 1000}, {"2.5E-2", 0.025}, {"007", 7}, {"1,234", 1234}, {"1,234.", 1234}});
  ExpectNumbers(DecimalPoint, {{"12,345,678.5", 12345678.5}, {"-1,234.568", -1234.568}, {"1,234e2", 123400}});
  ExpectNumbers(DecimalPoint, {{"\u00A05\u202F", 5}, {" \u202F-1,234.5\u00A0 ", -1234.5}});
  ExpectOthers(DecimalPoint, {{"", 0},           {" ", 0},           {".", 0},
                              {"- 5", 0},        {"--5", 0},         {"e5", 0},
                              {"abc", 0},        {"inf", 0},         {"nan", 0},
                              {"$5", 0},         {"0,500", 0},       {",123", 0},
                              {"5-", 5},         {"1e", 1},          {"1e+", 1},
                              {"1.5.2", 1.5},    {"12 m", 12},       {"1 234", 1},
                              {"5\n", 5},        {"0x10", 0},        {"1,5", 1},
                              {"01,234", 1},     {"1,2345", 1},      {"1,,234", 1},
                              {"1,234,5", 1234}, {"1234,567", 1234}, {"1.234,567", 1.234}});
}

TEST_F(NumberText, ReadsTheSignsOfOtherCountries) {
  ExpectNumbers(DecimalComma, {{"1.234", 1234}, {"1.234,5", 1234.5}, {"0,5", 0.5}, {",5", 0.5}});
  ExpectOthers(DecimalComma, {{"1.5", 1}, {"0.500", 0}, {"1,234.5", 1.234}});
  for (const NumberLocale& locale : {French, NoBreak}) {
    const std::string& separator = locale.GroupSeparator;
    ExpectNumbers(locale, {{"1" + separator + "234,5", 1234.5},
                           {"1 234,5", 1234.5},
                           {"1\u00A0234\u202F567,5", 1234567.5},
                           {"\u00A01 234" + separator, 1234},
                           {"1 234 567", 1234567}});
    ExpectOthers(locale, {{"1.234,5", 1}, {"1 23", 1}, {"1  234", 1}, {"1 234 m", 1234}, {"1 2345", 1}});
  }
  ExpectNumbers({",", " "}, {{"1\u00A0234,5", 1234.5}, {"1\u202F234", 1234}});
  ExpectNumbers(Ungrouped, {{"1234", 1234}});
  ExpectOthers(Ungrouped, {{"1,234", 1}, {"1 234", 1}});
}

TEST_F(NumberText, JudgesTheSizeByDigitsAndExponentTogether) {
  const std::string zeros(400, '0');
  ExpectNumbers(DecimalPoint, {{"0." + zeros + "1e50", 0}, {"1" + zeros + "e-400", 1}});
  ExpectNumbers(DecimalPoint, {{"1e-999", 0}, {"0.0000000001e-320", 0}, {"1000000000000000000000e-400", 0}});
  ExpectNumbers(DecimalPoint, {{"1e-99999999999999999999", 0}, {"0e99999999999999999999", 0}});
  ExpectOthers(DecimalPoint, {{"1e999", 0}, {"-1e999 ft", 0}, {"1.8e308", 0}, {"1e99999999999999999999", 0}});
  ExpectOthers(DecimalPoint, {{"1" + zeros + "e-50", 0}});
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
  const std::string blanks(1'000'000, ' ');
  ExpectOthers(DecimalPoint, {{digits, 0}, {groups, 0}});
  ExpectNumbers(DecimalPoint,
                {{tiny, 0}, {tiny + "e1000001", 1}, {digits + "e-999999", 70 / 9.0}, {blanks + "4", 4}});
}

TEST_F(NumberText, WhatIsWrittenPlainlyReadsBackTheSame) {
  std::mt19937_64 random(20);
  for (const NumberLocale& locale : {DecimalPoint, DecimalComma, French, Ungrouped}) {
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
  SetNumberLocale(DecimalComma);
  const std::vector<std::pair<double, std::string>> spellings = {
      {0, "0"},           {-0.0, "0"},         {0.1, "0.1"},    {-1234567.25, "-1234567.25"},
      {1e-5, "0.00001"},  {9.9e-6, "9.9e-06"}, {1e15, "1e+15"}, {999999999999999, "999999999999999"},
      {100000, "100000"}, {5e-324, "5e-324"}};
  for (const auto& [number, text] : spellings) EXPECT_EQ(PlainNumber(number), text);
  EXPECT_EQ(PlainNumberInLocale(-1234567.25), "-1234567,25");
}

TEST_F(NumberText, ChecksumNumbersKnowNoLocale) {
  SetNumberLocale(DecimalComma);
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
  SetNumberLocale(DecimalComma);
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

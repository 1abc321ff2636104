// Tests that run as people in several countries write numbers.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "engine/NumberText.h"

inline void PrintTo(const NumberLocale& locale, std::ostream* out) {
  *out << "1" << locale.GroupSeparator << "234" << locale.DecimalSign << "5";
}

/// With the signs of the locale for "." and "," that stand beside a digit, and for a "." that is quoted;
/// lists of fixed texts keep theirs, and a line the full stop at its end.
inline std::string Respelled(const NumberLocale& locale, const std::string& text) {
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  std::string respelled;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char before = i > 0 ? text[i - 1] : ' ';
    const char after = i + 1 < text.size() ? text[i + 1] : ' ';
    const bool inNumber = isDigit(before) || isDigit(after);
    if (text[i] == '.' &&
        ((inNumber && after != '\\' && after != '\t') || (before == '\'' && after == '\''))) {
      respelled += locale.DecimalSign;
    } else if (text[i] == ',' && inNumber && after != ' ') {
      respelled += locale.GroupSeparator;
    } else {
      respelled += text[i];
    }
  }
  return respelled;
}

/// Texts are written with "." and "," in the test and spelled for the locale by Spelled().
class LocaleTest : public testing::TestWithParam<NumberLocale> {
 protected:
  LocaleTest() { SetNumberLocale(GetParam()); }
  ~LocaleTest() override { SetNumberLocale({}); }

  static bool DecimalComma() { return GetParam().DecimalSign == ","; }

  static std::string Spelled(const std::string& text) {
    std::string spelled;
    for (const char c : text) {
      spelled += c == '.' ? GetParam().DecimalSign : c == ',' ? GetParam().GroupSeparator : std::string(1, c);
    }
    return spelled;
  }
};

/// For the end of each fixture: INSTANTIATE_LOCALES(Fixture);
#define INSTANTIATE_LOCALES(Fixture) \
  INSTANTIATE_TEST_SUITE_P(          \
      Locales, Fixture,              \
      testing::Values(NumberLocale{".", ","}, NumberLocale{",", "."}, NumberLocale{",", "\u202F"}))

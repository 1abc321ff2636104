// Tests that run as people in several countries write numbers.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "engine/NumberText.h"

inline void PrintTo(const NumberLocale& locale, std::ostream* out) {
  *out << "1" << locale.GroupSeparator << "234" << locale.DecimalSign << "5";
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

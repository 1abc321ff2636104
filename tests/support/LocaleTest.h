// Tests that run under a decimal point and a decimal comma alike.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "engine/NumberText.h"

/// The parameter says whether "," is the decimal sign. Texts are written with "." and "," in the test and
/// spelled for the locale by Spelled().
class LocaleTest : public testing::TestWithParam<bool> {
 protected:
  LocaleTest() { SetNumberLocale(GetParam() ? NumberLocale{",", "."} : NumberLocale{".", ","}); }
  ~LocaleTest() override { SetNumberLocale({}); }

  static std::string Spelled(std::string text) {
    if (!GetParam()) return text;
    for (char& c : text) c = c == '.' ? ',' : c == ',' ? '.' : c;
    return text;
  }
};

/// For the end of each fixture: INSTANTIATE_LOCALES(Fixture);
#define INSTANTIATE_LOCALES(Fixture)                                                  \
  INSTANTIATE_TEST_SUITE_P(Locales, Fixture, testing::Bool(), [](const auto& param) { \
    return std::string(param.param ? "DecimalComma" : "DecimalPoint");                \
  })

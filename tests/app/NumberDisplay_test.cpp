// Significant digits and fixed decimals, from hand-worked decimals and against a second way of rounding.
#include "app/NumberDisplay.h"

#include <cmath>
#include <random>

#include "engine/EngineFault.h"
#include "support/LocaleTest.h"

namespace {

class NumberDisplay : public LocaleTest {};

struct ShownAs {
  EngineValue Value;
  int Digits;
  const char* Shown;
};

TEST_P(NumberDisplay, SignificantDigits) {
  // Halves go to the even digit; ln 1000 / ln 10 is a little below 3.
  for (const ShownAs& each :
       {ShownAs{1234.56, 3, "1,230"}, ShownAs{0.012345, 3, "0.0123"}, ShownAs{2.5, 3, "2.50"},
        ShownAs{0, 3, "0.00"}, ShownAs{0.000123456, 2, "0.00012"}, ShownAs{99.96, 3, "100.0"},
        ShownAs{12345, 2, "12,000"}, ShownAs{-0.5, 3, "-0.500"}, ShownAs{1234567.0, 5, "1,234,600"},
        ShownAs{0.25, 1, "0.2"}, ShownAs{0.75, 1, "0.8"}, ShownAs{25, 1, "20"}, ShownAs{35, 1, "40"},
        ShownAs{9.5, 1, "10"}, ShownAs{1000, 4, "1,000.0"}, ShownAs{1e-7, 2, "0.00000010"},
        ShownAs{-1e20, 3, "-100,000,000,000,000,000,000"}}) {
    EXPECT_EQ(SigFormat(each.Value, 1, each.Digits).Text(), Spelled(each.Shown)) << each.Value.Text();
  }
  EXPECT_EQ(SigFormat(100, 1 / 35.31467, 3).Text(), Spelled("2.83"));
  EXPECT_EQ(SigFormat(5e-324, 1, 3).Text(), "5e-324");  // its step underflows to zero
}

TEST_P(NumberDisplay, FixedDecimals) {
  // Halves, of the decimal that a person sees, go away from zero: the double of 1.005 lies a little below.
  for (const ShownAs& each :
       {ShownAs{2.34567, 3, "2.346"}, ShownAs{0.125, 2, "0.13"}, ShownAs{-0.125, 2, "-0.13"},
        ShownAs{1.005, 2, "1.01"}, ShownAs{0.5, 0, "1"}, ShownAs{1.5, 0, "2"}, ShownAs{-0.0004, 3, "0.000"},
        ShownAs{0.0006, 3, "0.001"}, ShownAs{0, 2, "0.00"}, ShownAs{999.9996, 3, "1,000.000"},
        ShownAs{1234.568, 3, "1,234.568"}, ShownAs{1e15, 1, "1,000,000,000,000,000.0"},
        ShownAs{123456789012345678.0, 0, "123,456,789,012,346,000"}, ShownAs{4e-7, 3, "0.000"},
        ShownAs{99.95, 1, "100.0"}}) {
    EXPECT_EQ(FixedFormat(each.Value, 1, each.Digits).Text(), Spelled(each.Shown)) << each.Value.Text();
  }
  EXPECT_EQ(FixedFormat(Spelled("1,000").c_str(), 1 / 3.28084, 3).Text(), Spelled("304.800"));
}

TEST_P(NumberDisplay, OtherThanNumbersPassAndWhatNoDoubleHoldsFaults) {
  for (const EngineValue& value : {EngineValue(), EngineValue("Overflow"), EngineValue::False()}) {
    EXPECT_EQ(SigFormat(value, 2, 3), value);
    EXPECT_EQ(FixedFormat(value, 2, 3), value);
  }
  EXPECT_THROW(SigFormat(1e308, 35, 3), EngineFault);
  EXPECT_THROW(FixedFormat(1e308, 35, 3), EngineFault);
}

// The last decimal shown is never further from the number than half a unit, and it reads back as a number.
TEST_P(NumberDisplay, StaysWithinHalfAUnitOfTheNumber) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> exponent(-6, 9);
  for (int i = 0; i < 3000; ++i) {
    const double x = std::pow(10.0, exponent(random));
    for (int digits = 1; digits <= 5; ++digits) {
      const std::string fixed = FixedFormat(x, 1, digits).Text();
      ASSERT_TRUE(IsNumeric(fixed)) << fixed;
      EXPECT_LE(std::fabs(LeadingNumber(fixed) - x), 0.5 * std::pow(10.0, -digits) + x * 1e-14) << fixed;
      const std::string significant = SigFormat(x, 1, digits).Text();
      EXPECT_LE(std::fabs(LeadingNumber(significant) / x - 1), 0.5001 * std::pow(10.0, 1 - digits))
          << significant;
    }
  }
}

INSTANTIATE_LOCALES(NumberDisplay);

}  // namespace

// Units, range checks and tidied numbers.
#include "app/FormStuff.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "app/Units.h"
#include "support/FakeServices.h"
#include "support/LocaleTest.h"
#include "support/ScriptedHost.h"

namespace {

TEST(UnitTable, CaptionsAndFactorsOfBothSystems) {
  // A cubic metre is 3.28084^3 cubic feet, an inch a twelfth of a foot.
  EXPECT_NEAR(UnitFactor(1, 2), 3.28084 * 3.28084 * 3.28084, 1e-5);
  EXPECT_NEAR(UnitFactor(1, 5), 3.28084 * 3.28084, 1e-5);
  EXPECT_EQ(UnitFactor(0, 4), 1.0 / 12);
  EXPECT_EQ(UnitFactor(1, 4) * 1000, UnitFactor(1, 1));
  EXPECT_EQ(UnitLabel(2, 1), "");
  EXPECT_THROW(UnitLabel(3, 1), std::out_of_range);
  EXPECT_THROW(UnitFactor(-1, 1), std::out_of_range);
  EXPECT_THROW(UnitFactor(0, 9), std::out_of_range);
}

class Helpers : public LocaleTest {
 protected:
  Helpers() { InstallServices(fakes_.With(windows_)); }

  FakeServices fakes_;
  ScriptedHost windows_;
};

TEST_P(Helpers, RangeChecksNameTheirBounds) {
  using FormStuff::CheckRange;
  EXPECT_TRUE(CheckRange(Spelled("0.5"), 0, false, 1, false, true));
  EXPECT_TRUE(CheckRange("0", 0, true, 1, false, true));
  EXPECT_TRUE(CheckRange("1", 0, false, 1, true, true));
  EXPECT_TRUE(CheckRange("-7", {}, false, {}, false, true));
  EXPECT_FALSE(CheckRange("", 0, false, 1, false, true));
  EXPECT_TRUE(fakes_.messageBox.Boxes.empty()) << "an empty text is asked for, not complained about";
  EXPECT_FALSE(CheckRange("0", 0, false, 1, false, true));
  EXPECT_FALSE(CheckRange("1", 0, false, 1, false, true));
  EXPECT_FALSE(CheckRange("x", {}, false, 2.5, true, true));
  EXPECT_FALSE(CheckRange("-6", -5, true, {}, false, true));
  EXPECT_FALSE(CheckRange("-6", -5, true, {}, false, false));
  ASSERT_EQ(fakes_.messageBox.Boxes.size(), 4U);
  EXPECT_EQ(fakes_.messageBox.Boxes[0].Title, "Warning");
  EXPECT_EQ(fakes_.messageBox.Boxes[0].Icon, BoxIcon::Exclamation);
  EXPECT_EQ(fakes_.messageBox.Boxes[0].Text, "Must be greater than 0 and less than 1");
  EXPECT_EQ(fakes_.messageBox.Boxes[2].Text, "Must be less than or equal to " + Spelled("2.5"));
  EXPECT_EQ(fakes_.messageBox.Boxes[3].Text, "Must be greater than or equal to-5");
}

TEST_P(Helpers, LeadingZeroOnlyWhereANumberLacksIt) {
  Form form("form");
  TextBox box{&form, "box"};
  struct Case {
    const char *Typed, *Tidy;
  };
  for (const auto& [typed, tidy] :
       {Case{".5", "0.5"}, Case{".25 ", "0.25 "}, Case{".", "."}, Case{"-.5", "-.5"}, Case{"1.5", "1.5"},
        Case{".5x", ".5x"}, Case{"abc", "abc"}, Case{"", ""}, Case{".5e1", ".5e1"}}) {
    box.Text = Spelled(typed);
    EXPECT_EQ(FormStuff::AddLeadingZero(box), Spelled(tidy));
  }
}

INSTANTIATE_LOCALES(Helpers);

}  // namespace

// The spelling of numbers in a project file, to and from the user's.
#include "app/FileNumber.h"

#include <gtest/gtest.h>

#include "engine/NumberText.h"

namespace {

struct Spelling {
  NumberLocale Locale;
  const char *OfUser, *InFile;
};

TEST(FileNumber, OnlyDecimalSignsAndSeparatorsBetweenDigitsChange) {
  const NumberLocale german{",", "."};
  const NumberLocale french{",", "\u202F"};
  const NumberLocale blanks{",", " "};
  for (const Spelling& each :
       {Spelling{german, "-1.234,5e-3", "-1,234.5e-3"}, Spelling{german, " ,5 ", " .5 "},
        Spelling{french, "1\u202F234,5", "1,234.5"}, Spelling{blanks, "1 234 567", "1,234,567"},
        Spelling{blanks, " 12 ", " 12 "}}) {
    SetNumberLocale(each.Locale);
    EXPECT_EQ(FileNumber::FromUser(each.OfUser), each.InFile);
    EXPECT_EQ(FileNumber::ToUser(each.InFile), each.OfUser);
  }
  SetNumberLocale(german);
  for (const char* const text : {"", "n 1.234,5", "1,2,3", "Reach 1.2"}) {
    EXPECT_EQ(FileNumber::FromUser(text), text);
    EXPECT_EQ(FileNumber::ToUser(text), text);
  }
  SetNumberLocale(french);
  EXPECT_EQ(FileNumber::FromUser("1 234,5"), "1,234.5") << "a plain blank is typed for the no-break space";
  SetNumberLocale({",", ""});
  EXPECT_EQ(FileNumber::ToUser("1,234.5"), "1234,5") << "no separator: the groups close up";
  SetNumberLocale({});
}

TEST(FileNumber, IsNumericWhateverTheLocale) {
  SetNumberLocale({",", "."});
  EXPECT_TRUE(FileNumber::IsNumeric("1,234.5"));
  EXPECT_FALSE(FileNumber::IsNumeric("1.234,5"));
  SetNumberLocale({});
}

}  // namespace

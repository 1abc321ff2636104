// Numbers as people write them: reading them from text boxes and spelling them plainly.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// How a number is spelled for the user, UTF-8. An empty GroupSeparator means digits are never grouped.
struct NumberLocale {
  std::string DecimalSign = ".";
  std::string GroupSeparator = ",";
};

// The locale of every function below that does not say otherwise. An empty decimal sign becomes ".", and a
// group separator equal to the decimal sign is dropped: with it no number could be read back.
void SetNumberLocale(NumberLocale locale);
const NumberLocale& CurrentNumberLocale();

// Length of the group separator that the text begins with, 0 if there is none. No keyboard has a key for the
// no-break spaces, and programs differ in which one they write: each of them stands for the other, and so
// does a plain blank.
std::size_t GroupSeparatorLength(std::string_view text, const NumberLocale& locale);

// The text from its first character that is no blank, TAB or no-break space on.
std::string_view WithoutLeadingBlanks(std::string_view text);

// True when the whole text is one number: blanks, TABs and no-break spaces around it, one sign in front,
// plain digits or proper groups of three, the decimal sign, an exponent. False for a value too large for a
// double.
bool IsNumeric(std::string_view text);

// Its value where IsNumeric is true, else nothing.
std::optional<double> NumericValue(std::string_view text);
std::optional<double> NumericValue(std::string_view text, const NumberLocale& locale);

// True when the whole text is one number but for its value, which no double holds.
bool IsTooLarge(std::string_view text);

// The value of the longest leading part of the text that is a number; 0 where there is none or where the
// value is too large for a double.
double LeadingNumber(std::string_view text);

// The length of that part with the blanks before it; 0 where there is none.
std::size_t LeadingNumberLength(std::string_view text);

// The leading number of an item of the project file, for its checksum: independent of the locale, "." only,
// no groups. Blanks, TABs and line feeds are dropped first; D is an exponent letter as E is; &H and &O start
// hexadecimal and octal digits. No number or one too large: 0.
double Val(std::string_view text);

// The shortest digits that read back as the same double: fixed notation for 0 and 1e-5 <= |x| < 1e15, else
// with an exponent. Never grouped. The first has "." always, the second the locale's decimal sign.
std::string PlainNumber(double x);
std::string PlainNumberInLocale(double x);

// Reading and spelling numbers; see NumberText.h. Only from_chars and to_chars touch digits, because a
// desktop toolkit may change the C locale at any time.
#include "engine/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <optional>
#include <system_error>
#include <utility>

namespace {

NumberLocale& Locale() {
  static NumberLocale locale;
  return locale;
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

// Spreadsheets and web pages put no-break spaces beside a number, too.
size_t BlankLength(std::string_view text) {
  constexpr std::string_view blanks[] = {" ", "\t", "\u00A0", "\u202F"};
  const auto* const found = std::find_if(std::begin(blanks), std::end(blanks),
                                         [text](auto blank) { return text.starts_with(blank); });
  return found == std::end(blanks) ? 0 : found->size();
}

size_t DigitsFrom(std::string_view text, size_t start) {
  size_t end = start;
  while (end < text.size() && IsDigit(text[end])) ++end;
  return end - start;
}

// The number that a text begins with, respelled for from_chars.
struct ScannedNumber {
  std::string spelling;  // digits, ".", digits, "e", exponent; empty if there is no number
  bool negative = false;
  size_t end = 0;  // where the rest of the text begins
};

// Whole digits, grouped or plain. A first group that starts with 0 is no group: "0,500" is somebody's
// decimal comma, not five hundred.
size_t ScanWholePart(std::string_view text, size_t at, const NumberLocale& locale, std::string& spelling) {
  const size_t count = DigitsFrom(text, at);
  spelling.append(text.substr(at, count));
  const bool mayGroup = count >= 1 && count <= 3 && text[at] != '0';
  at += count;
  while (mayGroup) {
    const size_t skip = GroupSeparatorLength(text.substr(at), locale);
    if (skip == 0 || DigitsFrom(text, at + skip) != 3) break;
    spelling.append(text.substr(at + skip, 3));
    at += skip + 3;
  }
  return at;
}

size_t ScanExponent(std::string_view text, size_t at, std::string& spelling) {
  if (at >= text.size() || (text[at] != 'e' && text[at] != 'E')) return at;
  size_t digits = at + 1;
  const bool negative = digits < text.size() && text[digits] == '-';
  if (negative || (digits < text.size() && text[digits] == '+')) ++digits;
  const size_t count = DigitsFrom(text, digits);
  if (count == 0) return at;
  spelling.append(negative ? "e-" : "e").append(text.substr(digits, count));
  return digits + count;
}

ScannedNumber Scan(std::string_view text, const NumberLocale& locale) {
  ScannedNumber number;
  size_t at = 0;
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) number.negative = text[at++] == '-';
  at = ScanWholePart(text, at, locale, number.spelling);
  if (text.substr(at).starts_with(locale.DecimalSign)) {
    const size_t fraction = at + locale.DecimalSign.size();
    const size_t count = DigitsFrom(text, fraction);
    if (count > 0 || !number.spelling.empty()) {
      number.spelling.append(".").append(text.substr(fraction, count));
      at = fraction + count;
    }
  }
  if (number.spelling.empty()) return number;
  number.end = ScanExponent(text, at, number.spelling);
  return number;
}

// The number that the whole text is, blanks around it aside.
ScannedNumber ScanWhole(std::string_view text, const NumberLocale& locale) {
  text = WithoutLeadingBlanks(text);
  ScannedNumber number = Scan(text, locale);
  return WithoutLeadingBlanks(text.substr(number.end)).empty() ? number : ScannedNumber{};
}

// from_chars reports "out of range" for both ends. The power of ten of the first significant digit shows
// them apart; an exponent that no integer holds decides alone.
bool TooLarge(std::string_view spelling) {
  const size_t exponentAt = std::min(spelling.find('e'), spelling.size());
  const std::string_view digits = spelling.substr(0, exponentAt);
  const size_t point = std::min(digits.find('.'), digits.size());
  const size_t first = digits.find_first_not_of("0.");
  std::int64_t power = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
  if (exponentAt < spelling.size()) {
    const std::string_view text = spelling.substr(exponentAt + 1);
    std::int64_t exponent = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), exponent);
    if (read.ec != std::errc{}) return text.front() != '-';
    power = std::clamp<std::int64_t>(exponent, -1'000'000'000'000, 1'000'000'000'000) + power;
  }
  return power > 0;
}

// The value, or nothing where there is no number or one too large for a double. A value too small is 0.
std::optional<double> Value(const ScannedNumber& number) {
  if (number.spelling.empty()) return std::nullopt;
  const char* begin = number.spelling.data();
  double value = 0;
  const auto read = std::from_chars(begin, begin + number.spelling.size(), value);
  if (read.ec == std::errc::result_out_of_range) {
    if (TooLarge(number.spelling)) return std::nullopt;
    value = 0;
  }
  if (!std::isfinite(value)) return std::nullopt;
  return number.negative ? -value : value;
}

// Digits after &H or &O: a pattern of up to 16 bits is a signed 16-bit number, a longer one a signed 32-bit.
double BitPattern(std::string_view digits, int base) {
  std::uint32_t bits = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), bits, base);
  if (read.ec != std::errc{}) return 0;
  if (bits <= 0xFFFF) return static_cast<std::int16_t>(bits);
  return static_cast<std::int32_t>(bits);
}

}  // namespace

void SetNumberLocale(NumberLocale locale) {
  if (locale.DecimalSign.empty()) locale.DecimalSign = std::string(".");
  if (locale.GroupSeparator == locale.DecimalSign) locale.GroupSeparator.clear();
  Locale() = std::move(locale);
}

const NumberLocale& CurrentNumberLocale() {
  return Locale();
}

std::size_t GroupSeparatorLength(std::string_view text, const NumberLocale& locale) {
  constexpr std::string_view spaces[] = {"\u202F", "\u00A0", " "};
  const std::string_view separator = locale.GroupSeparator;
  if (std::find(std::begin(spaces), std::end(spaces), separator) == std::end(spaces))
    return text.starts_with(separator) ? separator.size() : 0;
  const auto* const found = std::find_if(std::begin(spaces), std::end(spaces),
                                         [text](auto space) { return text.starts_with(space); });
  return found == std::end(spaces) ? 0 : found->size();
}

std::string_view WithoutLeadingBlanks(std::string_view text) {
  while (const size_t length = BlankLength(text)) text.remove_prefix(length);
  return text;
}

std::optional<double> NumericValue(std::string_view text) {
  return NumericValue(text, Locale());
}

std::optional<double> NumericValue(std::string_view text, const NumberLocale& locale) {
  return Value(ScanWhole(text, locale));
}

bool IsTooLarge(std::string_view text) {
  const ScannedNumber number = ScanWhole(text, Locale());
  return !number.spelling.empty() && !Value(number);
}

bool IsNumeric(std::string_view text) {
  return NumericValue(text).has_value();
}

double LeadingNumber(std::string_view text) {
  return Value(Scan(WithoutLeadingBlanks(text), Locale())).value_or(0);
}

std::size_t LeadingNumberLength(std::string_view text) {
  const std::string_view number = WithoutLeadingBlanks(text);
  const size_t length = Scan(number, Locale()).end;
  return length == 0 ? 0 : text.size() - number.size() + length;
}

double Val(std::string_view text) {
  std::string packed;
  std::copy_if(text.begin(), text.end(), std::back_inserter(packed),
               [](char c) { return !IsBlank(c) && c != '\n'; });
  const std::string_view digits = std::string_view(packed).substr(std::min<size_t>(2, packed.size()));
  if (packed.starts_with("&H") || packed.starts_with("&h")) return BitPattern(digits, 16);
  if (packed.starts_with("&O") || packed.starts_with("&o")) return BitPattern(digits, 8);
  std::replace_if(
      packed.begin(), packed.end(), [](char c) { return c == 'd' || c == 'D'; }, 'e');
  return Value(Scan(packed, NumberLocale{".", ""})).value_or(0);
}

std::string PlainNumber(double x) {
  if (x == 0) return "0";
  const double magnitude = std::abs(x);
  const bool fixed = magnitude >= 1e-5 && magnitude < 1e15;
  std::array<char, 32> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), x,
                                 fixed ? std::chars_format::fixed : std::chars_format::scientific);
  return {buffer.data(), end.ptr};
}

std::string PlainNumberInLocale(double x) {
  std::string text = PlainNumber(x);
  const size_t point = text.find('.');
  if (point != std::string::npos) text.replace(point, 1, Locale().DecimalSign);
  return text;
}

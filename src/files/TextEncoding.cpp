// See TextEncoding.h.
#include "files/TextEncoding.h"

#include <array>
#include <cstddef>

namespace {

/// Characters of the Windows-1252 bytes 80 to 9F; the five that the standard leaves open stay control
/// characters.
constexpr std::array<const char*, 32> Windows1252 = {
    "\u20AC", "\u0081", "\u201A", "\u0192", "\u201E", "\u2026", "\u2020", "\u2021",
    "\u02C6", "\u2030", "\u0160", "\u2039", "\u0152", "\u008D", "\u017D", "\u008F",
    "\u0090", "\u2018", "\u2019", "\u201C", "\u201D", "\u2022", "\u2013", "\u2014",
    "\u02DC", "\u2122", "\u0161", "\u203A", "\u0153", "\u009D", "\u017E", "\u0178"};

/// The bytes that may begin a character of a length, and the range of its second byte: it shuts out longer
/// spellings than needed, surrogates and what lies beyond the last character.
struct Utf8Form {
  unsigned char FirstLead, LastLead, FirstSecond, LastSecond;
  size_t Length;
};
constexpr std::array<Utf8Form, 8> Utf8Forms = {{{0xC2, 0xDF, 0x80, 0xBF, 2},
                                                {0xE0, 0xE0, 0xA0, 0xBF, 3},
                                                {0xE1, 0xEC, 0x80, 0xBF, 3},
                                                {0xED, 0xED, 0x80, 0x9F, 3},
                                                {0xEE, 0xEF, 0x80, 0xBF, 3},
                                                {0xF0, 0xF0, 0x90, 0xBF, 4},
                                                {0xF1, 0xF3, 0x80, 0xBF, 4},
                                                {0xF4, 0xF4, 0x80, 0x8F, 4}}};

bool IsBetween(char c, unsigned char first, unsigned char last) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= first && byte <= last;
}

bool IsAscii(char c) {
  return IsBetween(c, 0, 0x7F);
}

/// Length of the UTF-8 character that the text begins with, 0 when it begins with none.
size_t CharacterLength(std::string_view text) {
  if (IsAscii(text[0])) return 1;
  for (const Utf8Form& form : Utf8Forms) {
    if (!IsBetween(text[0], form.FirstLead, form.LastLead)) continue;
    if (text.size() < form.Length || !IsBetween(text[1], form.FirstSecond, form.LastSecond)) return 0;
    for (size_t i = 2; i < form.Length; ++i) {
      if (!IsBetween(text[i], 0x80, 0xBF)) return 0;
    }
    return form.Length;
  }
  return 0;
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const size_t length = CharacterLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

std::string FromWindows1252(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (IsAscii(c)) {
      text += c;
    } else if (byte < 0xA0) {
      text += Windows1252[byte - 0x80];
    } else {  // from A0 on the byte is the character's number
      text += byte < 0xC0 ? '\xC2' : '\xC3';
      text += static_cast<char>(0x80 | (byte & 0x3F));
    }
  }
  return text;
}

constexpr std::string_view LittleEndianMark = "\xFF\xFE";
constexpr std::string_view BigEndianMark = "\xFE\xFF";

void AppendUtf8(std::string& text, char32_t c) {
  if (c < 0x80) {
    text += static_cast<char>(c);
    return;
  }
  const int trailing = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
  constexpr std::array<char32_t, 4> lead = {0, 0xC0, 0xE0, 0xF0};
  text += static_cast<char>(lead.at(static_cast<size_t>(trailing)) | (c >> (6 * trailing)));
  for (int i = trailing - 1; i >= 0; --i) text += static_cast<char>(0x80 | ((c >> (6 * i)) & 0x3F));
}

}  // namespace

std::string DecodedText(std::string_view bytes) {
  if (bytes.starts_with("\uFEFF")) bytes.remove_prefix(3);
  return IsUtf8(bytes) ? std::string(bytes) : FromWindows1252(bytes);
}

bool IsUtf16(std::string_view bytes) {
  return bytes.starts_with(LittleEndianMark) || bytes.starts_with(BigEndianMark);
}

std::string FromUtf16(std::string_view bytes) {
  const size_t low = bytes.starts_with(LittleEndianMark) ? 0 : 1;  // place of the low byte in its pair
  const auto unitAt = [&](size_t i) -> char32_t {
    const auto byte = [&](size_t place) { return static_cast<unsigned char>(bytes[i + place]); };
    return i + 1 < bytes.size() ? static_cast<char32_t>(byte(low) | (byte(1 - low) << 8)) : 0;
  };
  constexpr char32_t replacement = 0xFFFD;
  const auto isHigh = [](char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; };
  const auto isLow = [](char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; };
  std::string text;
  for (size_t i = 2; i + 1 < bytes.size(); i += 2) {
    const char32_t unit = unitAt(i);
    const char32_t next = unitAt(i + 2);
    if (isHigh(unit) && isLow(next)) {
      AppendUtf8(text, 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00));
      i += 2;
    } else {
      AppendUtf8(text, isHigh(unit) || isLow(unit) ? replacement : unit);
    }
  }
  return text;
}

// See Words.h.
#include "console/Words.h"

#include <algorithm>
#include <charconv>
#include <map>

namespace {

const std::map<char, char> Escapes = {{'t', '\t'}, {'r', '\r'}, {'n', '\n'}, {'\\', '\\'}};

}  // namespace

std::string Unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto escape = text[i] == '\\' && i + 1 < text.size() ? Escapes.find(text[i + 1]) : Escapes.end();
    plain += escape == Escapes.end() ? text[i] : escape->second;
    if (escape != Escapes.end()) ++i;
  }
  return plain;
}

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    const auto named =
        std::find_if(Escapes.begin(), Escapes.end(), [c](const auto& each) { return each.second == c; });
    if (named != Escapes.end()) escaped += '\\';
    escaped += named == Escapes.end() ? c : named->first;
  }
  return escaped;
}

int Whole(const std::string& word) {
  int number = 0;
  const auto read = std::from_chars(word.data(), word.data() + word.size(), number);
  if (read.ec != std::errc() || read.ptr != word.data() + word.size())
    throw Refusal("no whole number: " + word);
  return number;
}

// See TextRuns.h.
#include "platform/TextRuns.h"

#include <algorithm>

namespace {

constexpr std::string_view DigitsAndPoint = "0123456789.";
constexpr std::string_view IndexCharacters = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";

/// The length of what stands raised after a caret; a full stop behind the exponent ends a sentence.
std::size_t ExponentLength(std::string_view text) {
  std::size_t end = std::min(text.find_first_not_of(DigitsAndPoint), text.size());
  if (end > 0 && text[end - 1] == '.') --end;
  return end;
}

}  // namespace

std::vector<TextRun> TextRuns(std::string_view text) {
  using enum TextRun::Level;
  std::vector<TextRun> runs;
  const auto add = [&runs](std::string_view part, TextRun::Level level) {
    if (!part.empty()) runs.push_back({part, level});
  };
  while (!text.empty()) {
    const std::size_t mark = std::min(text.find_first_of("^_"), text.size());
    add(text.substr(0, mark), Line);
    if (mark == text.size()) break;
    const bool raised = text[mark] == '^';
    text.remove_prefix(mark + 1);
    const std::size_t close = raised && text.starts_with('(') ? text.find(')') : std::string_view::npos;
    if (close != std::string_view::npos) {
      add(text.substr(1, close - 1), Raised);
      text.remove_prefix(close + 1);
      continue;
    }
    const std::size_t length =
        raised ? ExponentLength(text) : std::min(text.find_first_not_of(IndexCharacters), text.size());
    add(text.substr(0, length), raised ? Raised : Lowered);
    text.remove_prefix(length);
  }
  return runs;
}

std::string WithoutIndices(std::string_view text) {
  std::string plain(text);
  std::erase(plain, '_');
  return plain;
}

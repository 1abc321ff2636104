// See Controls.h.
#include "platform/Controls.h"

#include <algorithm>
#include <utility>

namespace {

/// Byte offset of character `position` in a UTF-8 text; its end when there are fewer characters.
std::size_t ByteOffset(std::string_view text, int position) {
  std::size_t offset = 0;
  for (; position > 0 && offset < text.size(); --position) {
    ++offset;
    while (offset < text.size() && (static_cast<unsigned char>(text[offset]) & 0xC0U) == 0x80U) ++offset;
  }
  return offset;
}

int CharacterCount(std::string_view text) {
  return static_cast<int>(
      std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

}  // namespace

Control::Control(Form* form, std::string name) : form_(*form), name_(std::move(name)) {
  form_.controls_.push_back(this);
}

int TextBox::Length() const {
  return CharacterCount(Text.Get());
}

std::string TextBox::SelectedText() const {
  const std::string& text = Text;
  const TextRange range = Selection;
  const std::size_t from = ByteOffset(text, range.Start);
  return text.substr(from, ByteOffset(std::string_view(text).substr(from), range.Length));
}

void TextBox::Rewrite(const std::string& text) {
  const bool whole = Length() > 0 && Selection == TextRange{0, Length()};
  Text = text;
  if (whole) SelectAll();
}

void TextBox::ReplaceSelection(std::string_view with) {
  std::string text = Text;
  const TextRange range = Selection;
  const std::size_t from = ByteOffset(text, range.Start);
  text.replace(from, ByteOffset(std::string_view(text).substr(from), range.Length), with);
  const int caret = CharacterCount(std::string_view(text).substr(0, from + with.size()));
  Text = std::move(text);
  Selection = {caret, 0};
}

void TextBox::Paste(std::string_view from) {
  constexpr std::string_view lineEnds = "\r\n";
  from.remove_prefix(std::min(from.find_first_not_of(lineEnds), from.size()));
  from = from.substr(0, from.find_first_of(lineEnds));
  const int kept = Length() - CharacterCount(SelectedText());
  if (CharacterCount(from) <= LongestText - kept) {
    ReplaceSelection(from);
  } else if (TooLong) {
    TooLong();
  }
}

void TextBox::SelectAll() {
  Selection = {0, Length()};
}

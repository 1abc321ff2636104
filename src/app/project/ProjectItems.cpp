// See ProjectItems.h.
#include "app/project/ProjectItems.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "engine/NumberText.h"

namespace ProjectItems {

namespace {

constexpr const char* Blanks = " \t";
constexpr const char* BlanksAndLineEnds = " \t\r\n";

/// The text in quotes that starts at `at`, which moves behind the closing quote.
Item QuotedItem(std::string_view text, size_t& at) {
  Item item{"", true};
  for (;;) {
    const size_t quote = text.find('"', at + 1);
    if (quote == std::string_view::npos) throw std::runtime_error("a text without its closing quote");
    item.Text += text.substr(at + 1, quote - at - 1);
    at = quote + 1;
    if (at >= text.size() || text[at] != '"') return item;
    item.Text += '"';
  }
}

/// The item without quotes that starts at `at`, which moves to the comma or line end behind it.
Item PlainItem(std::string_view text, size_t& at) {
  const size_t end = std::min(text.find_first_of(",\r\n", at), text.size());
  const std::string_view item = text.substr(at, end - at);
  at = end;
  return {std::string(item.substr(0, item.find_last_not_of(Blanks) + 1)), false};
}

}  // namespace

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

std::vector<Item> Split(std::string_view text) {
  std::vector<Item> items;
  for (size_t at = 0;; ++at) {
    at = text.find_first_not_of(BlanksAndLineEnds, at);
    if (at == std::string_view::npos) return items;
    if (items.size() == MaxItems) throw std::runtime_error("too many items");
    items.push_back(text[at] == '"' ? QuotedItem(text, at) : PlainItem(text, at));
    at = text.find_first_not_of(Blanks, at);
    if (at == std::string_view::npos) return items;
    if (text[at] != ',' && text[at] != '\r' && text[at] != '\n')
      throw std::runtime_error("a text goes on behind its quote");
  }
}

double Checksum(std::span<const Item> items) {
  double sum = 0;
  for (const Item& item : items) {
    const double next = sum + Val(item.Text);
    if (std::isfinite(next)) sum = next;
  }
  return sum;
}

}  // namespace ProjectItems

// The records of a project file as BASIC's WRITE makes them: one line each, items parted by commas, texts in
// quotes, numbers plain, booleans #TRUE# and #FALSE#.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ProjectItems {

inline constexpr std::size_t MaxItems = 600;

/// One item as it stands in the file; a text without its quotes.
struct Item {
  std::string Text;
  bool Quoted = false;
};

/// The text in quotes, those within it doubled.
std::string Quoted(std::string_view text);

/// The items of a file's text, whatever its line breaks. Blanks, TABs and line ends around an item do not
/// count; an item without quotes ends with its line. std::runtime_error for more than MaxItems items, for
/// quotes that do not end, and for anything but a comma or a line end after a text in quotes.
std::vector<Item> Split(std::string_view text);

/// Sum of the values of the items in their order: of a text its leading number, of any other text and a
/// boolean 0. An item whose value, or the sum with it, is too large for a double counts 0.
double Checksum(std::span<const Item> items);

}  // namespace ProjectItems

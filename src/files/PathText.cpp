// See PathText.h.
#include "files/PathText.h"

std::filesystem::path PathOf(std::string_view text) {
  return std::u8string(text.begin(), text.end());
}

std::string TextOf(const std::filesystem::path& path) {
  const std::u8string text = path.generic_u8string();
  return {text.begin(), text.end()};
}

// The parts of a list that is written as one text.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

/// The parts of the text between the separators.
inline std::vector<std::string> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string> parts;
  for (std::size_t end = 0; end != std::string_view::npos; text.remove_prefix(std::min(end, text.size()))) {
    end = text.find(separator);
    parts.emplace_back(text.substr(0, end));
    if (end != std::string_view::npos) end += separator.size();
  }
  return parts;
}

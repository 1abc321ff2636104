// Texts with raised exponents and lowered indices, in the plain spelling that every text has: "R^(2/3)",
// "m^3", "y_c".
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct TextRun {
  enum class Level { Raised, Line, Lowered };
  std::string_view Text;  ///< a part of the text that was split
  Level At;
};

/// The parts of a text in their order, without the marks.
std::vector<TextRun> TextRuns(std::string_view text);

/// As it is written where nothing can be lowered: "yc" for "y_c"; exponents stay as they are.
std::string WithoutIndices(std::string_view text);

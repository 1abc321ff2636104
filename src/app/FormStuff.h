// What several windows do with a text box: test its range, select it, tidy its number.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Controls.h"

namespace FormStuff {

/// Bounds of a number; an absent one does not bound.
struct Range {
  std::optional<double> Min;
  bool MinInclusive = false;
  std::optional<double> Max;
  bool MaxInclusive = false;
};

/// True when the number is within the bounds.
bool Within(double x, const Range& range);

/// " greater than 0 and less than 1": what a number of this range must be, with a blank in front.
std::string RangeText(const Range& range);

inline constexpr const char* TooLongForBox = "The text on the clipboard is too long for a box";

/// "Depth must be a number; the decimal sign here is ','", for a text that is none or too large for one.
std::string WhyNoNumber(const std::string& name, std::string_view text);

/// Puts what is wrong with the box, or nothing, into its tool tip and marks a mistake; an empty box is none,
/// but a question. True when nothing is wrong.
bool Mark(TextBox& box, const std::string& offence, bool isMistake = true);

/// True when the text is a number within the bounds. With `showMessage` a "Warning" box says what the number
/// must be; an empty text fails without it.
bool CheckRange(std::string_view value, std::optional<double> min, bool minInclusive,
                std::optional<double> max, bool maxInclusive, bool showMessage);

/// Selects the whole text, so that typing replaces it.
void SelectAllText(TextBox& box);

/// The box's text, with "0" in front of a number from 0 to 1 that starts with the decimal sign.
std::string AddLeadingZero(const TextBox& box);
std::string AddLeadingZero(const std::string& text);

}  // namespace FormStuff

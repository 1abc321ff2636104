// The spelling of numbers in a project file: "." and "," in every locale, so that projects can be exchanged.
#pragma once

#include <string>
#include <string_view>

namespace FileNumber {

/// True when the text is one number in the file's spelling, whatever the user's locale.
bool IsNumeric(std::string_view text);

/// A text of the user with its number, if it is one in the user's locale, respelled digit for digit for the
/// file. Where the locale groups by a no-break space, a plain blank typed for it counts as that sign.
std::string FromUser(const std::string& text);

/// A text of the file, likewise respelled for the user's locale; without a group separator there the groups
/// close up. Any other text comes back unchanged, here and above.
std::string ToUser(const std::string& text);

}  // namespace FileNumber

// The encoding of texts that come from files.
#pragma once

#include <string>
#include <string_view>

/// The text of a file as UTF-8 without a byte order mark. Bytes that are not valid UTF-8 throughout are read
/// as Windows-1252, which gives every byte a character, so nothing is lost.
std::string DecodedText(std::string_view bytes);

/// True for bytes that begin with the byte order mark of UTF-16; such a text as UTF-8. Half a surrogate pair
/// becomes the replacement character.
bool IsUtf16(std::string_view bytes);
std::string FromUtf16(std::string_view bytes);

// Replacing a file so that at every moment, through a full disk, a kill or a power cut, its name leads to the
// whole old file or to the whole new one.
#pragma once

#include <filesystem>
#include <string_view>

/// Writes the bytes into a new file beside the old one, under a hidden name, gives it the old one's owner,
/// permissions, access list and attributes, and lets it take the old one's place; or makes the file. False,
/// with nothing changed, where that would lose one of them or another hard link, or where the folder cannot
/// be written: the old file has then to be written in place. std::runtime_error for any other failure, among
/// them that another program is replacing the file. What a kill leaves goes when the file is next replaced.
/// `file` is no link.
bool SafeReplace(const std::filesystem::path& file, std::string_view bytes);

// Files of a person's work: read whole or not at all, and replaced whole or not at all.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace WholeFile {

/// The largest file that is read: 4 MiB, far more than any project needs.
inline constexpr std::size_t MaxSize = std::size_t{4} << 20;

/// The bytes of a regular file of at most that size. std::runtime_error when it is none or cannot be read to
/// its end.
std::string Read(const std::string& path);

/// Writes the file, over the one that is there. std::runtime_error when it could not: the previous file is
/// then as it was. The file keeps its permissions; a link stays, and the file it leads to is written.
void Write(const std::string& path, std::string_view bytes);

}  // namespace WholeFile

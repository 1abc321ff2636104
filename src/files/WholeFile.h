// The user's files: read whole or not at all, and replaced whole or not at all.
#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>

namespace WholeFile {

/// The largest project that is read: 4 MiB, far more than any needs.
inline constexpr std::size_t MaxSize = std::size_t{4} << 20;

/// The bytes of a regular file. std::runtime_error when it is none, has more than `most` bytes or cannot be
/// read to its end.
std::string Read(const std::string& path, std::size_t most = MaxSize);

/// False when the file now holds other bytes than these, or cannot be read. One that is gone has nothing to
/// lose.
bool IsStill(const std::string& path, std::string_view bytes);

/// Writes the file, over the one that is there. std::runtime_error when it could not: the previous file is
/// then as it was. A link stays, and the file it leads to is written; the file keeps its owner, permissions,
/// access list, attributes and hard links. Where only writing in place keeps them, the new content is first
/// kept whole as a recovery copy, which stays until the file has been read back.
void Write(const std::string& path, std::string_view bytes);

/// Why a file could not be read or written, in words for the user.
std::string ReasonOf(const std::exception& failure);

}  // namespace WholeFile

// A new file in the place of an old one.
#pragma once

#include <filesystem>

#include "files/OpenFile.h"

/// Lets the file `made` at `path`, written and flushed, take the place of `file`, which is no link and may
/// not be there yet, with the owner, permissions, access list and attributes of the one that is. Where that
/// would lose one of them: false, and `file` is as it was. std::system_error for any other failure. Outlives
/// a power cut where the file system can do that. `made` may be closed afterwards.
bool TakePlace(OpenFile& made, const std::filesystem::path& path, const std::filesystem::path& file);

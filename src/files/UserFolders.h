// Where the system wants a user's files to be that are no documents.
#pragma once

#include <filesystem>

namespace UserFolders {

/// Preferences, and data of the programs themselves. Empty where the user has no home folder.
std::filesystem::path Config();
std::filesystem::path Data();

}  // namespace UserFolders

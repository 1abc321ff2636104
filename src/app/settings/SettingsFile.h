// The per-user settings store: a UTF-8 text file of "[Section]" and "key=value" lines. Whatever is missing or
// unreadable reads as the empty text, and a store that cannot be written is left as it is.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace SettingsFile {

/// "flumewise/settings.ini" in $XDG_CONFIG_HOME or ~/.config.
std::string DefaultPath();

/// The file that the functions below read and write; empty: none.
void Use(std::string path);

/// A file of that name beside it, for what is no preference; empty without a settings file.
std::string Beside(std::string_view name);

std::string Get(std::string_view section, std::string_view key);

/// Replaces the keys given and keeps every other line of the file.
void Save(std::string_view section, const std::vector<std::pair<std::string, std::string>>& values);

}  // namespace SettingsFile

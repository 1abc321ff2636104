// Paths as the program and its files hold them: as UTF-8 with "/" between folders, whatever the system.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

std::filesystem::path PathOf(std::string_view text);
std::string TextOf(const std::filesystem::path& path);

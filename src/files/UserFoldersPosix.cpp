// See UserFolders.h.
#include "files/UserFolders.h"

#include <cstdlib>

namespace fs = std::filesystem;

namespace {

/// Absolute file name from an environment variable; empty when it is unset or relative.
fs::path EnvironmentFolder(const char* variable) {
  const char* const value = std::getenv(variable);
  const fs::path folder = value == nullptr ? "" : value;
  return folder.is_absolute() ? folder : fs::path();
}

fs::path UserFolder(const char* variable, const char* belowHome) {
  fs::path folder = EnvironmentFolder(variable);
  const fs::path home = EnvironmentFolder("HOME");
  return folder.empty() && !home.empty() ? home / belowHome : folder;
}

}  // namespace

fs::path UserFolders::Config() {
  return UserFolder("XDG_CONFIG_HOME", ".config");
}

fs::path UserFolders::Data() {
  return UserFolder("XDG_DATA_HOME", ".local/share");
}

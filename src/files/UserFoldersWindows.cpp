// See UserFolders.h.
#include "files/UserFolders.h"

#include <shlobj.h>

namespace fs = std::filesystem;

namespace {

fs::path KnownFolder(const KNOWNFOLDERID& folder) {
  PWSTR found = nullptr;
  const bool known = SUCCEEDED(SHGetKnownFolderPath(folder, 0, nullptr, &found));
  fs::path path = known ? fs::path(found) : fs::path();
  CoTaskMemFree(found);
  return path;
}

}  // namespace

fs::path UserFolders::Config() {
  return KnownFolder(FOLDERID_RoamingAppData);
}

fs::path UserFolders::Data() {
  return KnownFolder(FOLDERID_LocalAppData);
}

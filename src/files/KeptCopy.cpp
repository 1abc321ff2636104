// See KeptCopy.h.
#include "files/KeptCopy.h"

#include <algorithm>
#include <random>
#include <sstream>
#include <stdexcept>
#include <system_error>

#include "files/PathText.h"
#include "files/SafeReplace.h"
#include "files/UserFolders.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* Extension = ".fwd";
constexpr const char* AsideExtension = ".set-aside";

fs::path LockOf(fs::path path) {
  return path += ".lock";
}

fs::path RecoveryFolder() {
  const fs::path data = UserFolders::Data();
  return data.empty() ? data : data / "Flumewise" / "recovery";
}

fs::path NewPath() {
  const fs::path folder = RecoveryFolder();
  if (folder.empty()) throw std::runtime_error("there is no folder for recovery copies");
  if (fs::create_directories(folder)) fs::permissions(folder, fs::perms::owner_all);
  std::random_device random;
  std::ostringstream name;
  name << std::hex << random() << '-' << random() << Extension;
  return folder / name.str();
}

OpenFile OpenLock(const fs::path& path) {
  return {LockOf(path), OpenFile::For::ChangingOrMaking};
}

}  // namespace

KeptCopy::KeptCopy(fs::path path) : path_(std::move(path)) {}

KeptCopy::KeptCopy(std::string origin, std::string_view bytes) : KeptCopy(NewPath()) {
  origin_ = std::move(origin);
  lock_.emplace(OpenLock(path_));
  try {
    lock_->Lock(LockOf(path_));
    lock_->Write(origin_);
    Write(bytes);
  } catch (const std::exception&) {
    Remove();
    throw;
  }
}

std::optional<KeptCopy> KeptCopy::TakeOver(const fs::path& path) {
  KeptCopy copy(path);
  try {
    copy.lock_.emplace(OpenLock(path));
    if (!copy.lock_->Lock(LockOf(path))) return std::nullopt;
    std::string origin = copy.lock_->Read();
    if (PathOf(origin).is_absolute()) copy.origin_ = std::move(origin);
  } catch (const std::system_error&) {
    // A lock that cannot be opened is held by nobody.
  }
  if (!copy.Exists()) return std::nullopt;
  return copy;
}

bool KeptCopy::Exists() const {
  std::error_code error;
  return fs::status(path_, error).type() != fs::file_type::not_found;
}

std::vector<fs::path> KeptCopy::All() {
  std::error_code none;
  std::vector<std::pair<fs::file_time_type, fs::path>> found;
  for (const auto& entry : fs::directory_iterator(RecoveryFolder(), none)) {
    if (entry.path().extension() == Extension) found.emplace_back(fs::last_write_time(entry, none), entry);
  }
  std::ranges::sort(found, std::greater{});
  std::vector<fs::path> paths;
  paths.reserve(found.size());
  for (auto& [time, path] : found) paths.push_back(std::move(path));
  return paths;
}

void KeptCopy::Write(std::string_view bytes) const {
  if (!SafeReplace(path_, bytes)) throw std::runtime_error("the recovery folder cannot be written");
}

void KeptCopy::Remove() {
  std::error_code gone;
  fs::remove(path_, gone);
  fs::remove(LockOf(path_), gone);
}

fs::path KeptCopy::SetAside() {
  fs::path aside = path_;
  do aside += AsideExtension;
  while (fs::exists(aside));
  fs::rename(path_, aside);
  Remove();
  return aside;
}

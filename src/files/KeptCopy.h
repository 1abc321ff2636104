// Copies of unsaved work in the recovery folder, each locked by the program that keeps it. One that no
// program locks is left over from one that did not end well.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/OpenFile.h"

class KeptCopy {
 public:
  /// A new copy of what belongs in the file `origin` (empty: in none yet). It stays on the disk, unlocked,
  /// when this object goes. std::runtime_error when it cannot be written; then nothing is left.
  KeptCopy(std::string origin, std::string_view bytes);
  KeptCopy(KeptCopy&&) = default;
  KeptCopy& operator=(KeptCopy&&) = delete;
  KeptCopy(const KeptCopy&) = delete;
  KeptCopy& operator=(const KeptCopy&) = delete;
  ~KeptCopy() = default;

  /// Takes over a copy that was left; nothing when a program still locks it, or when it is gone.
  static std::optional<KeptCopy> TakeOver(const std::filesystem::path& path);

  /// All copies there are, the latest first.
  static std::vector<std::filesystem::path> All();

  const std::filesystem::path& Path() const { return path_; }
  bool Exists() const;
  const std::string& Origin() const { return origin_; }

  /// Writes the content, over what it held, whole or not at all: then std::runtime_error.
  void Write(std::string_view bytes) const;

  void Remove();
  /// Gives it a name under which it is no copy any more, and returns that.
  std::filesystem::path SetAside();

 private:
  explicit KeptCopy(std::filesystem::path path);

  std::filesystem::path path_;
  std::string origin_;
  std::optional<OpenFile> lock_;
};

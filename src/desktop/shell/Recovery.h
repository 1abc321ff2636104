// Copies of unsaved work, kept in the user's data folder for the case of a crash or a power cut.
#pragma once

#include <QTimer>
#include <filesystem>
#include <optional>

#include "app/main/frmMain.h"
#include "app/project/ProjectFile.h"
#include "files/KeptCopy.h"

/// Keeps a copy of the work in progress, brought up to date every few seconds, until that work is saved or
/// given up.
class Recovery {
 public:
  /// No unsaved work is older than twice this in the copy.
  static constexpr int Milliseconds = 4000;

  explicit Recovery(frmMain& main, int milliseconds = Milliseconds);
  /// The program ends as it should: the copy goes.
  ~Recovery();
  Recovery(const Recovery&) = delete;
  Recovery& operator=(const Recovery&) = delete;

  /// Asks about each copy that a program left, the latest first, until one is opened. One that cannot be
  /// opened is set aside, and the user informed.
  void OfferLeftCopies();

  /// Brings the copy up to date.
  void Look();
  /// Brings the copy up to date and leaves it for the next start.
  void Leave();

 private:
  void Keep(ProjectFile::Project work);
  void Drop();
  /// True when the copy became the current project.
  bool Offer(const std::filesystem::path& path);

  frmMain& main_;
  QTimer timer_;
  std::optional<KeptCopy> copy_;
  std::optional<ProjectFile::Project> kept_;  // what the copy holds
};

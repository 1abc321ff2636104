// Copies of unsaved work, kept in the user's data folder for the case of a crash or a power cut.
#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>
#include <QTimer>
#include <optional>

#include "app/main/frmMain.h"
#include "app/project/ProjectFile.h"

/// Keeps a copy of the project in work while it has unsaved changes, written when the person pauses. Each
/// running program locks a copy of its own; a copy that no program locks is left over from one that did not
/// end well.
class Recovery {
 public:
  explicit Recovery(frmMain& main);
  /// The program ends as it should: the copy goes.
  ~Recovery();
  Recovery(const Recovery&) = delete;
  Recovery& operator=(const Recovery&) = delete;

  /// Asks about each left-over copy, the latest first, until one is opened. A copy that was asked about goes.
  void OfferLeftCopies();

 private:
  void Look();
  void KeepCopy(const ProjectFile::Project& project);
  void DropCopy();
  /// True when the copy became the project in work.
  bool Offer(const QString& path);

  frmMain& main_;
  QString folder_;
  QString copy_;
  QLockFile lock_;
  QTimer timer_;
  std::optional<ProjectFile::Project> seen_;  // at the last look
  std::optional<ProjectFile::Project> kept_;  // what the copy holds
};

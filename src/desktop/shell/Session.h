// The end of the user's session, at log-out or shutdown.
#pragma once

#include <QObject>
#include <optional>

#include "app/main/frmMain.h"
#include "app/project/ProjectFile.h"
#include "desktop/shell/Recovery.h"

/// Asks once about unsaved changes when the session is about to end, first about those in an open editor, and
/// ends the program without another question when it does. Work that the user has neither saved nor given up
/// then stays as a recovery copy.
class Session : public QObject {
 public:
  Session(frmMain& main, Recovery& recovery);

  /// Asks about unsaved changes; false when the session is to go on.
  bool MayEnd();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  frmMain& main_;
  Recovery& recovery_;
  std::optional<ProjectFile::Project> givenUp_;
};

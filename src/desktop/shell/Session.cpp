// See Session.h.
#include "desktop/shell/Session.h"

#include <QApplication>
#include <QEvent>
#include <QSessionManager>

#include "app/settings/InitialFile.h"
#include "section/frmIrreg.h"

Session::Session(frmMain& main, Recovery& recovery) : main_(main), recovery_(recovery) {
  connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& session) {
    if (!session.allowsInteraction()) return;
    if (!MayEnd()) session.cancel();
    session.release();
  });
  qApp->installEventFilter(this);
}

bool Session::MayEnd() {
  givenUp_.reset();
  // No file takes the points that are still in the editor.
  if (main_.ChangedPoints && main_.ChangedPoints() && !frmIrreg::GiveUpPoints()) return false;
  if (!main_.ChecknSave()) return false;
  givenUp_ = main_.UnsavedProject();
  return true;
}

bool Session::eventFilter(QObject* watched, QEvent* event) {
  if (watched != qApp || event->type() != QEvent::Quit) return false;
  const auto work = main_.UnsavedProject();
  if (work && work != givenUp_) recovery_.Leave();
  InitialFile::SavePreferences();
  QApplication::exit();
  return true;
}

// See FrontWindow.h.
#include "desktop/kit/FrontWindow.h"

#include <QApplication>
#include <QWidget>

QWidget* FrontWindow() {
  if (QWidget* const dialog = QApplication::activeModalWidget()) return dialog;
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (window->objectName() == QLatin1String("frmMain") && window->isVisible()) return window;
  }
  return nullptr;
}

// See FrontWindow.h.
#include "desktop/FrontWindow.h"

#include <QApplication>

#include "desktop/MainView.h"

QWidget* FrontWindow() {
  if (QWidget* const dialog = QApplication::activeModalWidget()) return dialog;
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (dynamic_cast<MainView*>(window) != nullptr && window->isVisible()) return window;
  }
  return nullptr;
}

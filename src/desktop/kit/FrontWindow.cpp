// See FrontWindow.h.
#include "desktop/kit/FrontWindow.h"

#include <QApplication>
#include <QMessageBox>
#include <QWidget>

QWidget* FrontWindow() {
  if (QWidget* const dialog = QApplication::activeModalWidget()) return dialog;
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (window->objectName() == QLatin1String("frmMain") && window->isVisible()) return window;
  }
  return nullptr;
}

void SetUpBox(QMessageBox& box) {
  box.setTextFormat(Qt::PlainText);
  // The box's own function makes it a sheet, which Wayland shows without a title bar to move it by.
  box.QWidget::setWindowModality(Qt::WindowModal);
}

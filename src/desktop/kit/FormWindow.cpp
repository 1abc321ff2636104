// See FormWindow.h.
#include "desktop/kit/FormWindow.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <algorithm>

#include "desktop/kit/Bind.h"

FormWindow::FormWindow(QWidget* parent) : QMainWindow(parent) {
  setWindowModality(Qt::WindowModal);
}

QMenu* FormWindow::AddMenu(const QString& title, const std::initializer_list<Item>& items) {
  QMenu* const menu = menuBar()->addMenu(title);
  for (const Item& item : items) {
    if (item.Command == nullptr) {
      menu->addSeparator();
      continue;
    }
    QAction* const action = Bind::Item(*item.Command, menu, item.Mnemonics);
    action->setShortcut(item.Shortcut);
    menu->addAction(action);
  }
  return menu;
}

void FormWindow::SetSize(QSize ems) {
  const int em = fontMetrics().height();
  const QRect room = screen()->availableGeometry().adjusted(0, 2 * em, -em / 2, -em / 2);
  QRect place({}, (ems * em).boundedTo(room.size()));
  place.moveCenter(parentWidget() == nullptr ? room.center() : parentWidget()->geometry().center());
  place.moveBottomRight({std::min(place.right(), room.right()), std::min(place.bottom(), room.bottom())});
  place.moveTopLeft({std::max(place.left(), room.left()), std::max(place.top(), room.top())});
  setGeometry(place);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) close();
  QMainWindow::keyPressEvent(event);
}

// See ToolBar.h.
#include "desktop/ToolBar.h"

#include <QMainWindow>
#include <QToolBar>

QToolBar* MakeToolBar(QMainWindow& window) {
  QToolBar* const bar = window.addToolBar(QMainWindow::tr("Tools"));
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  const int side = window.fontMetrics().height() * 5 / 4;
  bar->setIconSize({side, side});
  return bar;
}

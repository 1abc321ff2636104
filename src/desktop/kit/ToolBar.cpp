// See ToolBar.h.
#include "desktop/kit/ToolBar.h"

#include <QMainWindow>
#include <QToolBar>
#include <QToolButton>

void NameToolBar(QToolBar& bar) {
  bar.setWindowTitle(QToolBar::tr("Tools"));
  for (auto* const more : bar.findChildren<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")))
    more->setAccessibleName(QToolBar::tr("More tools"));
}

QToolBar* MakeToolBar(QMainWindow& window) {
  auto* const bar = new QToolBar(&window);
  NameToolBar(*bar);
  window.addToolBar(bar);
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  const int side = window.fontMetrics().height() * 5 / 4;
  bar->setIconSize({side, side});
  return bar;
}

// See ToolBar.h.
#include "desktop/ToolBar.h"

#include <QMainWindow>
#include <QPainter>
#include <QToolBar>
#include <QToolButton>

#include "desktop/Appearance.h"

namespace {

/// A bar on the window's own ground with a line below. What a style draws there instead goes through the
/// painter dot by dot, in threads that are made for it, and keeps the window waiting.
class FlatToolBar : public QToolBar {
 public:
  using QToolBar::QToolBar;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter(this).fillRect(0, height() - 1, width(), 1, Appearance::Line(palette()));
  }
};

}  // namespace

void NameToolBar(QToolBar& bar) {
  bar.setWindowTitle(QToolBar::tr("Tools"));
  for (auto* const more : bar.findChildren<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")))
    more->setAccessibleName(QToolBar::tr("More tools"));
}

QToolBar* MakeToolBar(QMainWindow& window) {
  auto* const bar = new FlatToolBar(&window);
  NameToolBar(*bar);
  window.addToolBar(bar);
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  const int side = window.fontMetrics().height() * 5 / 4;
  bar->setIconSize({side, side});
  return bar;
}

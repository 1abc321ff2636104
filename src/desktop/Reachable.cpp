// See Reachable.h.
#include "desktop/Reachable.h"

#include <QComboBox>
#include <QGraphicsView>
#include <QLineEdit>
#include <QToolBar>
#include <QToolButton>

namespace {

void MakePreviewReachable(const QWidget& preview) {
  for (auto* const bar : preview.findChildren<QToolBar*>()) bar->setWindowTitle(QObject::tr("Tools"));
  for (auto* const button : preview.findChildren<QToolButton*>()) button->setFocusPolicy(Qt::TabFocus);
  for (auto* const line : preview.findChildren<QLineEdit*>()) {
    const bool zoom = qobject_cast<QComboBox*>(line->parent()) != nullptr;
    line->setAccessibleName(zoom ? QObject::tr("Zoom") : QObject::tr("Page"));
  }
  for (auto* const pages : preview.findChildren<QGraphicsView*>()) {
    for (QWidget* const part : {pages->parentWidget(), static_cast<QWidget*>(pages), pages->viewport()})
      part->setAccessibleName(QObject::tr("Pages"));
  }
}

}  // namespace

void MakeReachable(const QWidget& window) {
  for (auto* const more : window.findChildren<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")))
    more->setAccessibleName(QObject::tr("More tools"));
  if (window.inherits("QPrintPreviewDialog")) MakePreviewReachable(window);
}

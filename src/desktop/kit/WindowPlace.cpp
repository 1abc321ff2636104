// See WindowPlace.h.
#include "desktop/kit/WindowPlace.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QWidget>
#include <algorithm>

#include "app/settings/SettingsFile.h"
#include "desktop/kit/Text.h"

namespace {

QString StoreFile() {
  return ToQt(SettingsFile::Beside("windows.ini"));
}

QString PlaceKey(const QWidget& window) {
  return window.objectName() + QStringLiteral("/place");
}
QString MaximizedKey(const QWidget& window) {
  return window.objectName() + QStringLiteral("/maximized");
}

bool Fits(const QWidget& window, const QRect& place) {
  const QWidget* const below = window.parentWidget();
  const QList<QScreen*> screens =
      below == nullptr ? QGuiApplication::screens() : QList<QScreen*>{below->screen()};
  return std::ranges::any_of(
      screens, [&](const QScreen* screen) { return screen->availableGeometry().contains(place); });
}

class KeepsPlace : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Hide && !event->spontaneous()) Keep(*qobject_cast<QWidget*>(watched));
    return false;
  }

 private:
  static void Keep(const QWidget& window) {
    QSettings store(StoreFile(), QSettings::IniFormat);
    QRect place = window.isMaximized() ? window.normalGeometry() : window.geometry();
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
      // Only the size is known there; the place of another session stays if it still can.
      const QRect before = store.value(PlaceKey(window)).toRect();
      place.moveTopLeft(before.topLeft());
      if (!before.isValid() || !Fits(window, place))
        place.moveCenter(window.screen()->availableGeometry().center());
    }
    if (place.isValid()) store.setValue(PlaceKey(window), place);
    store.setValue(MaximizedKey(window), window.isMaximized());
  }
};

}  // namespace

void KeepPlace(QWidget& window) {
  if (StoreFile().isEmpty()) return;
  const QSettings store(StoreFile(), QSettings::IniFormat);
  const QRect place = store.value(PlaceKey(window)).toRect();
  if (place.isValid() && Fits(window, place)) window.setGeometry(place);
  if (store.value(MaximizedKey(window)).toBool()) window.setWindowState(Qt::WindowMaximized);
  window.installEventFilter(new KeepsPlace(&window));
}

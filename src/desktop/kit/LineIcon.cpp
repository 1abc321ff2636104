// See LineIcon.h.
#include "desktop/kit/LineIcon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace {

class LineIconEngine : public QIconEngine {
 public:
  LineIconEngine(QString file, const QColor& colour) : file_(std::move(file)), colour_(colour) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal ratio = painter->device()->devicePixelRatio();
    QPixmap drawn = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
    drawn.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect.topLeft(), drawn);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    const QString colour = Colour(mode).name();
    const QString key = QStringLiteral("%1 %2 %3x%4").arg(file_, colour).arg(size.width()).arg(size.height());
    QPixmap drawn;
    if (!QPixmapCache::find(key, &drawn)) {
      drawn = Drawn(size, colour);
      QPixmapCache::insert(key, drawn);
    }
    return drawn;
  }

  /// For the title bar, the task bar and the list of windows, which take pixels.
  QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override { return {{16, 16}, {32, 32}, {48, 48}}; }

  QIconEngine* clone() const override { return new LineIconEngine(file_, colour_); }

 private:
  QColor Colour(QIcon::Mode mode) const {
    if (colour_.isValid()) return colour_;
    const bool disabled = mode == QIcon::Disabled;
    return QGuiApplication::palette().color(disabled ? QPalette::Disabled : QPalette::Active,
                                            QPalette::WindowText);
  }

  QPixmap Drawn(const QSize& size, const QString& colour) const {
    QFile file(file_);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QSvgRenderer drawing(file.readAll().replace("currentColor", colour.toLatin1()));
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    drawing.render(&painter);
    return drawn;
  }

  QString file_;
  QColor colour_;
};

}  // namespace

QIcon LineIcon(const char* name, const QColor& colour) {
  return QIcon(new LineIconEngine(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name)), colour));
}

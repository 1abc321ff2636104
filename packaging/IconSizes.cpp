// Draws an icon in the sizes of the hicolor theme, in which every desktop looks:
// icon_sizes DRAWING.svg FOLDER apps/NAME.png makes FOLDER/16x16/apps/NAME.png and so on.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {

constexpr int Sizes[] = {16, 22, 24, 32, 48, 64, 128, 256};

bool DrawIcon(QSvgRenderer& drawing, int size, const QString& file) {
  QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  drawing.render(&painter);
  painter.end();
  return image.save(file);
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 4) return 2;
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  if (!drawing.isValid()) return 1;
  for (const int size : Sizes) {
    const QFileInfo file(QStringLiteral("%1/%2x%2/%3").arg(argv[2]).arg(size).arg(argv[3]));
    if (!file.dir().mkpath(".") || !DrawIcon(drawing, size, file.filePath())) return 1;
  }
  return 0;
}

// See Symbol.h.
#include "desktop/kit/Symbol.h"

#include <QPainter>
#include <cmath>

namespace {

constexpr double IndexScale = 0.75;

QString Base(const QString& symbol) {
  return symbol.section(QLatin1Char('_'), 0, 0);
}

QString Index(const QString& symbol) {
  return symbol.section(QLatin1Char('_'), 1);
}

QFont Italic(QFont font, const QString& symbol) {
  font.setItalic(!symbol.isEmpty() && !symbol.front().isDigit());
  return font;
}

}  // namespace

QString SymbolLetters(const QString& symbol) {
  return QString(symbol).remove(QLatin1Char('_'));
}

QString SymbolAsRichText(const QString& symbol) {
  return QStringLiteral("<i>%1</i><sub>%2</sub>").arg(Base(symbol).toHtmlEscaped(), Index(symbol));
}

double SymbolWidth(const QString& symbol, const QFont& font) {
  const QFontMetricsF italic(Italic(font, symbol));
  return italic.horizontalAdvance(Base(symbol)) + IndexScale * italic.horizontalAdvance(Index(symbol));
}

void DrawSymbol(QPainter& painter, const QPointF& from, const QString& symbol) {
  painter.save();
  painter.setFont(Italic(painter.font(), symbol));
  painter.translate(from);
  painter.drawText(QPointF(), Base(symbol));
  const QFontMetricsF italic(painter.font());
  painter.translate(italic.horizontalAdvance(Base(symbol)), 0.2 * italic.height());
  painter.scale(IndexScale, IndexScale);
  painter.drawText(QPointF(), Index(symbol));
  painter.restore();
}

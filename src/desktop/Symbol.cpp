// See Symbol.h.
#include "desktop/Symbol.h"

#include <QPainter>
#include <cmath>

namespace {

constexpr double IndexScale = 0.75;

QString Letter(const QString& symbol) {
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

double SymbolWidth(const QString& symbol, const QFont& font) {
  const QFontMetricsF italic(Italic(font, symbol));
  return italic.horizontalAdvance(Letter(symbol)) + IndexScale * italic.horizontalAdvance(Index(symbol));
}

void DrawSymbol(QPainter& painter, const QPointF& from, const QString& symbol) {
  painter.save();
  painter.setFont(Italic(painter.font(), symbol));
  painter.translate(from);
  painter.drawText(QPointF(), Letter(symbol));
  const QFontMetricsF italic(painter.font());
  painter.translate(italic.horizontalAdvance(Letter(symbol)), 0.2 * italic.height());
  // Scaled, for to look for a font of another size takes longer.
  painter.scale(IndexScale, IndexScale);
  painter.drawText(QPointF(), Index(symbol));
  painter.restore();
}

void SymbolLabel::SetSymbol(const QString& symbol) {
  symbol_ = symbol;
  setText(SymbolLetters(symbol));
  update();
}

QSize SymbolLabel::Measured() const {
  // A slanted letter reaches a little farther than the next one begins.
  return {static_cast<int>(std::ceil(SymbolWidth(symbol_, font()))) + 1, fontMetrics().height()};
}

void SymbolLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  const QFontMetrics metrics = fontMetrics();
  const int top = (height() - metrics.height()) / 2;
  DrawSymbol(painter, QPointF(0, top + metrics.ascent()), symbol_);
}

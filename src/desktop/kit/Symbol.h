// The symbols of hydraulics as they are printed: in italics, what stands behind "_" as an index, for example
// "y_c".
#pragma once

#include <QFont>
#include <QString>

class QPainter;
class QPointF;

/// As plain text, for screen readers and searches: "yc".
QString SymbolLetters(const QString& symbol);

/// For a label.
QString SymbolAsRichText(const QString& symbol);

/// How far the symbol reaches in this font, in pixels.
double SymbolWidth(const QString& symbol, const QFont& font);

/// Draws the symbol in the painter's font, from this point of the base line on.
void DrawSymbol(QPainter& painter, const QPointF& from, const QString& symbol);

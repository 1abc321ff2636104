// What a screen reader is told of drawings: a chart is the table of its points, a cross-section a picture in
// words.
#pragma once

#include <QAccessible>

/// For QAccessible::installFactory: null for what is no drawing of ours.
QAccessibleInterface* DrawingReader(const QString& className, QObject* object);

// What a screen reader reads of a chart: the table of its points.
#pragma once

#include <QAccessible>

/// For QAccessible::installFactory: null for what is no chart.
QAccessibleInterface* ReadChart(const QString& className, QObject* object);

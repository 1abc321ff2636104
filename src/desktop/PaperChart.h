// The picture of a chart on a printed page.
#pragma once

#include <QRectF>

#include "platform/XYChart.h"

class QCPPainter;

/// Paints the chart, whole and in light colours, into a rectangle (twips) of a page, as vectors.
void PaintChart(QCPPainter& painter, const XYChart& chart, const QRectF& area);

// The water in a pipe as a painter draws it.
#pragma once

#include <QPainterPath>
#include <QRectF>

/// The part of the circle at or below `surface`, which is a y of the same picture (downwards). Nothing below
/// the invert, all of it above the crown.
QPainterPath WaterInPipe(const QRectF& circle, double surface);

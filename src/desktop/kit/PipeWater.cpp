// See PipeWater.h.
#include "desktop/kit/PipeWater.h"

#include <QtMath>
#include <algorithm>
#include <cmath>

QPainterPath WaterInPipe(const QRectF& circle, double surface) {
  QPainterPath water;
  const double height = (circle.center().y() - surface) / (circle.height() / 2);
  if (height <= -1) return water;
  // Counterclockwise from the bank on the left, as the painter counts angles.
  const double bank = qRadiansToDegrees(std::asin(std::min(height, 1.0)));
  water.arcMoveTo(circle, 180 - bank);
  water.arcTo(circle, 180 - bank, 180 + 2 * bank);
  water.closeSubpath();
  return water;
}

#include "desktop/ShapeWidget.h"
ShapeWidget::ShapeWidget(frmMain& form, QWidget* parent) : QWidget(parent), form_(form) {}
QSize ShapeWidget::minimumSizeHint() const {
  const int em = fontMetrics().height();
  return {16 * em, 11 * em};
}

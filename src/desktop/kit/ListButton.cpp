// See ListButton.h.
#include "desktop/kit/ListButton.h"

#include <QStyleOptionComboBox>
#include <QStylePainter>

ListButton::ListButton(QWidget* parent) : QToolButton(parent) {
  setPopupMode(InstantPopup);
  setFocusPolicy(Qt::NoFocus);
}

QStyleOptionComboBox ListButton::Look() const {
  QStyleOptionComboBox look;
  look.initFrom(this);
  look.currentText = text();
  look.subControls = QStyle::SC_All;
  look.editable = false;
  if (isDown()) look.state |= QStyle::State_On;
  return look;
}

QSize ListButton::sizeHint() const {
  const QStyleOptionComboBox look = Look();
  return style()->sizeFromContents(QStyle::CT_ComboBox, &look, fontMetrics().size(0, text()), this);
}

void ListButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  const QStyleOptionComboBox look = Look();
  painter.drawComplexControl(QStyle::CC_ComboBox, look);
  painter.drawControl(QStyle::CE_ComboBoxLabel, look);
}

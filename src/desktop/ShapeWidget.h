// The drawing of the current channel beside its inputs.
#pragma once

#include <QWidget>

#include "app/frmMain.h"

class ShapeWidget : public QWidget {
 public:
  ShapeWidget(frmMain& form, QWidget* parent);
  QSize minimumSizeHint() const override;

 private:
  frmMain& form_;
};

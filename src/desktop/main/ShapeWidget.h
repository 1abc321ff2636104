// The drawing of the current channel beside its inputs, live with them where they are numbers.
#pragma once

#include <QWidget>

#include "app/main/frmMain.h"
#include "desktop/main/ShapeLayout.h"

class ShapeWidget : public QWidget {
 public:
  ShapeWidget(frmMain& form, QWidget* parent);
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Refresh();
  void Describe();

  frmMain& form_;
  ShapeInputs inputs_;
  ShapeLabels labels_;
};

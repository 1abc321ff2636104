// The drawing of the current channel beside its inputs, live with them where they are numbers.
#pragma once

#include <QTimer>
#include <QWidget>

#include "app/main/frmMain.h"
#include "desktop/main/ShapeLayout.h"

class ShapeWidget : public QWidget {
 public:
  ShapeWidget(frmMain& form, QWidget* parent);
  QSize minimumSizeHint() const override;
  /// As last painted.
  const ShapeLayout& Layout() const { return layout_; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Refresh();
  void LayOut(const QRectF& canvas);

  frmMain& form_;
  ShapeInputs inputs_;
  ShapeLayout layout_;
  QTimer typing_;  ///< runs until a pause
};

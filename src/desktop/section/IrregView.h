// The window of frmIrreg.
#pragma once

#include "desktop/kit/FormWindow.h"
#include "section/frmIrreg.h"

class IrregView : public FormWindow {
 public:
  IrregView(frmIrreg& form, QWidget* parent);

 protected:
  // A survey dropped on the window is imported.
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  frmIrreg& form_;
};

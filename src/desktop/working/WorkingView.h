// The window of the working.
#pragma once

#include "desktop/kit/FormWindow.h"
#include "working/frmWorking.h"

class WorkingView : public FormWindow {
 public:
  /// Belongs to no other window, so that neither keeps the other from sight.
  WorkingView(frmWorking& form, QWidget* parent);

 private:
  void LeaveInputsInSight();
};

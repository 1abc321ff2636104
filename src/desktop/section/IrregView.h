// The window of frmIrreg.
#pragma once

#include "desktop/kit/FormWindow.h"
#include "section/frmIrreg.h"

class IrregView : public FormWindow {
 public:
  IrregView(frmIrreg& form, QWidget* parent);
};

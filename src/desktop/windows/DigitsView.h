// The window of frmDigits.
#pragma once

#include "app/frmDigits.h"
#include "desktop/windows/FormDialog.h"

class DigitsView : public FormDialog {
 public:
  DigitsView(frmDigits& form, QWidget* parent);
};

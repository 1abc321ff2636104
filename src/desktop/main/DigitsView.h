// The window of frmDigits.
#pragma once

#include "app/main/frmDigits.h"
#include "desktop/kit/FormDialog.h"

class DigitsView : public FormDialog {
 public:
  DigitsView(frmDigits& form, QWidget* parent);
};

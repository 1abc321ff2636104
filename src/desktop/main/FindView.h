// The window of frmFind.
#pragma once

#include "app/main/frmFind.h"
#include "desktop/kit/FormDialog.h"

class FindView : public FormDialog {
 public:
  FindView(frmFind& form, QWidget* parent);
};

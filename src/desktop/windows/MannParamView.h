// The window of frmMannParam.
#pragma once

#include "app/frmMannParam.h"
#include "desktop/windows/FormDialog.h"

class MannParamView : public FormDialog {
 public:
  MannParamView(frmMannParam& form, QWidget* parent);
};

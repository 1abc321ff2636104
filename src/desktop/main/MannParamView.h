// The window of frmMannParam.
#pragma once

#include "app/main/frmMannParam.h"
#include "desktop/kit/FormDialog.h"

class MannParamView : public FormDialog {
 public:
  MannParamView(frmMannParam& form, QWidget* parent);
};

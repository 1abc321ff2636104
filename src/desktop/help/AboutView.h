// The window of frmAbout.
#pragma once

#include "desktop/kit/FormDialog.h"
#include "help/frmAbout.h"

class AboutView : public FormDialog {
 public:
  AboutView(frmAbout& form, QWidget* parent);
};

// The window of frmAbout.
#pragma once

#include "desktop/FormDialog.h"
#include "help/frmAbout.h"

class AboutView : public FormDialog {
 public:
  AboutView(frmAbout& form, QWidget* parent);
};

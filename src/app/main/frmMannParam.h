// The list of typical Manning's n values; the one chosen goes into the main window's box.
#pragma once

#include "app/main/frmMain.h"
#include "platform/Controls.h"

class frmMannParam : public Form {
 public:
  explicit frmMannParam(frmMain& main);

  ListBox lstMannParam{this, "lstMannParam"};
  Button cmdOK{this, "cmdOK"}, cmdCancel{this, "cmdCancel"};

  void cmdOK_Click();
  void cmdCancel_Click();

 protected:
  void Form_Load() override;

 private:
  frmMain& main_;
};

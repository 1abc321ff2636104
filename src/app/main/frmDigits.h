// The dialog that chooses how many digits results show.
#pragma once

#include "platform/Controls.h"

class frmDigits : public Form {
 public:
  frmDigits();

  Label lblSigDigs{this, "lblSigDigs"};
  ControlArray<OptionButton, 1, 5> optSigDigs{this, "optSigDigs"};
  Label lblEngDigs{this, "lblEngDigs"};
  ControlArray<OptionButton, 1, 4> optEngDigs{this, "optEngDigs"};
  Button cmdOK{this, "cmdOK"}, cmdCancel{this, "cmdCancel"};

  void cmdOK_Click();
  void cmdCancel_Click();

 protected:
  void Form_Load() override;
};

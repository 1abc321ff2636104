// The about box: what this program is, which version, under which licence, and on whose work it stands.
#pragma once

#include "platform/Controls.h"

class frmAbout : public Form {
 public:
  frmAbout();

  Label lblName{this, "lblName"}, lblVersion{this, "lblVersion"}, lblPurpose{this, "lblPurpose"},
      lblLicence{this, "lblLicence"}, lblLibraries{this, "lblLibraries"};
  Button cmdOK{this, "cmdOK"};

  void cmdOK_Click();
};

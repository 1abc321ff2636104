// Flow and depth are both given, and an input is found: roughness, slope or a size of the section.
#pragma once

#include <vector>

#include "app/main/FindInput.h"
#include "app/main/frmMain.h"
#include "platform/Controls.h"

class frmFind : public Form {
 public:
  explicit frmFind(frmMain& main);

  Label lblFind{this, "lblFind"};
  ComboBox cbxFind{this, "cbxFind"};
  Label lblFlow{this, "lblFlow"}, lblDepth{this, "lblDepth"}, lblFound{this, "lblFound"};
  TextBox tbFlow{this, "tbFlow"}, tbDepth{this, "tbDepth"}, tbFound{this, "tbFound"};
  Label lblFlowUnits{this, "lblFlowUnits"}, lblDepthUnits{this, "lblDepthUnits"},
      lblFoundUnits{this, "lblFoundUnits"};
  /// Why nothing is found.
  Label lblStatus{this, "lblStatus"};
  Button cmdOK{this, "cmdOK"}, cmdCancel{this, "cmdCancel"};

  /// Writes the value, and the flow or the depth with which it was found, into the main window.
  void cmdOK_Click();
  void cmdCancel_Click();

 protected:
  void Form_Load() override;

 private:
  void Find();
  const Findable& Wanted() const;

  frmMain& main_;
  std::vector<Findable> findable_;  // each line of cbxFind
};

// The settings of the rating graph: the varied input with its first and last value, and the result plotted.
#pragma once

#include "rating/RangeSettings.h"

class frmGraphSettings : public RangeSettings {
 public:
  frmGraphSettings();

  Label Label6{this, "Label6"}, Frame2{this, "Frame2"};
  ComboBox cbxY{this, "cbxY"};

  void cbxY_Click();
  void cmdOK_Click() override;

 protected:
  void Form_Load() override;

 private:
  std::string Extent() const override;
};

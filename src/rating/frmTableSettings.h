// The settings of the rating table: the varied input with its first value, last value and step.
#pragma once

#include "rating/RangeSettings.h"

class frmTableSettings : public RangeSettings {
 public:
  frmTableSettings();

  Label Label3{this, "Label3"}, Label4{this, "Label4"};
  TextBox tbIncrement{this, "tbIncrement"};

  void cbxVary_Click() override;
  void cmdLastUsed_Click() override;
  void cmdOK_Click() override;

 protected:
  void Form_Load() override;

 private:
  void ProposeStep();
  bool MarkStep() override;
  std::optional<double> TypedStep() const override { return Internal(tbIncrement); }
  std::string Extent() const override;
  std::string StepOffence() const;
};

// What the windows of frmGraphSettings and frmTableSettings have in common.
#pragma once

#include "desktop/kit/FormDialog.h"
#include "rating/RangeSettings.h"

class QGridLayout;
class QGroupBox;
class QLabel;

class RangeSettingsView : public FormDialog {
 protected:
  RangeSettingsView(RangeSettings& form, Label& vary, QWidget* parent);

  /// A row of the range; its unit is that of the range's ends.
  void AddRow(Label& caption, TextBox& box, const char* letters, QLabel* unit);
  /// The unit of the range once more.
  QLabel* SameUnit();
  /// What keeps OK off, and the buttons.
  void Finish();

 private:
  void TellReason();

  RangeSettings& form_;
  QGroupBox* group_;
  QGridLayout* range_;
  std::vector<TextBox*> boxes_;
  QLabel* reason_;
};

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
  void AddRow(Label& caption, TextBox& box, const char* mnemonics, QLabel* unit);
  /// The unit of the range once more.
  QLabel* SameUnit();
  /// The range last used, below the rows of the range.
  void AddLastUsed();
  /// What keeps OK off or how far the range goes, and the buttons.
  void Finish();

 private:
  RangeSettings& form_;
  QGroupBox* group_;
  QGridLayout* range_;
};

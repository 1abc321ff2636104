// The window of frmTableSettings.
#pragma once

#include "desktop/rating/RangeSettingsView.h"
#include "rating/frmTableSettings.h"

class TableSettingsView : public RangeSettingsView {
 public:
  TableSettingsView(frmTableSettings& form, QWidget* parent);
};

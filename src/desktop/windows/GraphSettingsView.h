// The window of frmGraphSettings.
#pragma once

#include "desktop/windows/RangeSettingsView.h"
#include "rating/frmGraphSettings.h"

class GraphSettingsView : public RangeSettingsView {
 public:
  GraphSettingsView(frmGraphSettings& form, QWidget* parent);
};

// The window of frmGraphSettings.
#pragma once

#include "desktop/rating/RangeSettingsView.h"
#include "rating/frmGraphSettings.h"

class GraphSettingsView : public RangeSettingsView {
 public:
  GraphSettingsView(frmGraphSettings& form, QWidget* parent);
};

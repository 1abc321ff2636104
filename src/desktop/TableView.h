// The window of frmTable.
#pragma once

#include "desktop/FormWindow.h"
#include "rating/frmTable.h"

class TableView : public FormWindow {
 public:
  TableView(frmTable& form, QWidget* parent);
};

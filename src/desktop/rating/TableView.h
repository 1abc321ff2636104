// The window of frmTable.
#pragma once

#include "desktop/rating/RatingView.h"
#include "rating/frmTable.h"

class TableView : public RatingView {
 public:
  TableView(frmTable& form, QWidget* parent);
};

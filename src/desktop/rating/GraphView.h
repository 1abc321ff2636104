// The window of frmGraph.
#pragma once

#include "desktop/rating/RatingView.h"
#include "rating/frmGraph.h"

class GraphView : public RatingView {
 public:
  GraphView(frmGraph& form, QWidget* parent);
};

// The window of frmGraph.
#pragma once

#include "desktop/FormWindow.h"
#include "rating/frmGraph.h"

class GraphView : public FormWindow {
 public:
  GraphView(frmGraph& form, QWidget* parent);
};

// Holds the picture of a chart while its page is printed. This form is never shown.
#pragma once

#include "platform/XYChart.h"

class frmTempPic : public Form {
 public:
  /// The chart must outlive the form and the document printed from it.
  explicit frmTempPic(const XYChart& chart);

  struct PictureBox : Control {
    using Control::Control;
    const XYChart* Picture = nullptr;
  } PicTemp{this, "PicTemp"};

  /// The largest size of the picture's own proportions within a room (twips); nothing where there is no room.
  ChartSize Fitted(ChartSize room) const;
};

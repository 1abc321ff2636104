// What the views of the rating graph and the rating table share.
#pragma once

#include "desktop/kit/FormWindow.h"
#include "rating/RatingWindow.h"

class RatingView : public FormWindow {
 protected:
  RatingView(RatingWindow& form, QWidget* parent);

  /// The command of the Edit menu, for the context menu of what is shown.
  QAction* CopyAction() const { return copy_; }
  /// Why the series in force has no point: what the values of its varied input must be, and where to choose
  /// others.
  static QString WhyNoPoints();

 private:
  QAction* copy_;
};

// What the views of the rating graph and the rating table share.
#pragma once

#include "desktop/kit/FormWindow.h"
#include "rating/RatingWindow.h"

class QVBoxLayout;

class RatingView : public FormWindow {
 protected:
  RatingView(RatingWindow& form, QWidget* parent);

  /// The command of the Edit menu, for the context menu of what is shown.
  QAction* CopyAction() const { return copy_; }
  /// Puts the chart or the table into the window, and below it which points are missing.
  QVBoxLayout* SetContent(QWidget* content);
  /// The margins of what stands below the data.
  QMargins Below() const;
  /// Why the series in force shows nothing, and where to choose another range.
  QString WhyNothing() const;

 private:
  RatingWindow& form_;
  QAction* copy_;
};

// The labels of a window's fields.
#pragma once

#include <QLabel>

/// A label of one line that measures its text once. QLabel lays a text out three times whenever it is asked,
/// and a window of fifty labels shows later for it. With word wrap it is as any QLabel.
class LineLabel : public QLabel {
 public:
  using QLabel::QLabel;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  virtual QSize Measured() const;

 private:
  mutable QSize size_;
  mutable QString measuredText_;
  mutable QFont measuredFont_;
};

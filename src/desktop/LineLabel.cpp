// See LineLabel.h.
#include "desktop/LineLabel.h"

QSize LineLabel::sizeHint() const {
  if (wordWrap()) return QLabel::sizeHint();
  ensurePolished();
  if (size_.isNull() || measuredText_ != text() || measuredFont_ != font()) {
    size_ = Measured();
    measuredText_ = text();
    measuredFont_ = font();
  }
  return size_;
}

QSize LineLabel::minimumSizeHint() const {
  return wordWrap() ? QLabel::minimumSizeHint() : sizeHint();
}

QSize LineLabel::Measured() const {
  return fontMetrics().size(Qt::TextSingleLine | Qt::TextShowMnemonic, text());
}

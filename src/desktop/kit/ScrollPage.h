// A page that is scrolled where the screen is too small for it or the text too large, and else looks like any
// other.
#pragma once

#include <QScrollArea>

class QVBoxLayout;

class ScrollPage : public QScrollArea {
 public:
  ScrollPage(QWidget* page, QWidget* parent);
  /// Fills the window with the page and, below it and always in sight, its ending. Returns this column.
  static QVBoxLayout* Fill(QWidget* window, QWidget* page, QWidget* ending);
  /// That of the page, whole.
  QSize sizeHint() const override;
};

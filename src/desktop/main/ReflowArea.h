// The middle of the main window: inputs, results and drawing beside each other while there is room. In a
// small window, or with large text, the drawing goes below the numbers first, then the results below the
// inputs; what is too much even then is scrolled.
#pragma once

#include "desktop/kit/ScrollPage.h"

class FieldPanel;
class QGridLayout;

class ReflowArea : public ScrollPage {
 public:
  struct Parts {
    QWidget* Top;  ///< over the full width
    FieldPanel* Inputs;
    QWidget* Drawing;
    FieldPanel* Results;
  };
  /// The parts are children of `page`, which becomes the area's own.
  ReflowArea(QWidget* page, const Parts& parts, QWidget* parent);

 protected:
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  enum class Columns { Three, Two, One };
  Columns Best(QSize room) const;
  void Arrange();
  void Place(Columns columns);

  Parts parts_;
  QGridLayout* grid_;
};

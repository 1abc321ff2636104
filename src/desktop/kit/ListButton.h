// A list whose lines are commands: it looks like a combo box and opens a menu. Neither the wheel nor an arrow
// key runs a command by mistake, and the box that is typed into keeps the keyboard.
#pragma once

#include <QToolButton>

class QStyleOptionComboBox;

class ListButton : public QToolButton {
 public:
  explicit ListButton(QWidget* parent);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QStyleOptionComboBox Look() const;
};

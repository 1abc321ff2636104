// The widget of a text box: a line edit that shows the box and passes on what is typed and selected.
#pragma once

#include <QLineEdit>

#include "platform/Controls.h"

class BoxEdit : public QLineEdit {
 public:
  BoxEdit(TextBox& box, QWidget* parent);

 protected:
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void ShowText();
  void ShowSelection();
  void ShowLook();
  void TellSelection();
  void ForgetEdits();

  TextBox& box_;
  bool focusedByPress_ = false;
  bool selectOnRelease_ = false;
};

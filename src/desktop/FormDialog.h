// A dialog of the calculator: window-modal, Escape is its Cancel button.
#pragma once

#include <QDialog>
#include <QPushButton>

#include "platform/Form.h"

class QVBoxLayout;

class FormDialog : public QDialog {
 public:
  FormDialog(Form& form, QWidget* parent);

  void reject() override { cancel_->click(); }

 protected:
  /// Puts the buttons into a row at the end of the layout; Enter is `ok` unless another button has the focus.
  /// Without `cancel` Escape is `ok` too.
  void AddButtons(QVBoxLayout* layout, QPushButton* ok, QPushButton* cancel = nullptr);

 private:
  QPushButton* cancel_ = nullptr;
};

// A dialog of the calculator: window-modal, Escape is its Cancel button. What does not fit the screen is
// scrolled, the buttons below it never.
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
  /// Where all but the buttons goes.
  QVBoxLayout& Column() { return *column_; }
  /// Puts the buttons below the column, which is complete by then; Enter is `ok` unless another button has
  /// the focus. Without `cancel` Escape is `ok` too. `why` says what keeps `ok` off, always in sight above
  /// them.
  void AddButtons(QPushButton* ok, QPushButton* cancel = nullptr, QWidget* why = nullptr);

  void showEvent(QShowEvent* event) override;

 private:
  /// What the screen has for a dialog.
  QSize Room() const;

  QWidget* page_;
  QVBoxLayout* column_;
  QPushButton* cancel_ = nullptr;
};

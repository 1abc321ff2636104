// See FormDialog.h.
#include "desktop/FormDialog.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

FormDialog::FormDialog(QWidget* parent) : QDialog(parent) {
  setWindowModality(Qt::WindowModal);
}

void FormDialog::AddButtons(QVBoxLayout* layout, QPushButton* ok, QPushButton* cancel) {
  cancel_ = cancel;
  ok->setDefault(true);
  auto* const row = new QDialogButtonBox(this);
  row->addButton(ok, QDialogButtonBox::AcceptRole);
  row->addButton(cancel, QDialogButtonBox::RejectRole);
  layout->addStretch();
  layout->addWidget(row);
}

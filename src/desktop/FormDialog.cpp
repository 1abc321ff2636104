// See FormDialog.h.
#include "desktop/FormDialog.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

#include "desktop/Text.h"

FormDialog::FormDialog(Form& form, QWidget* parent) : QDialog(parent) {
  setWindowModality(Qt::WindowModal);
  // The title is read whole, with the buttons of the title bar beside it.
  setMinimumWidth(fontMetrics().horizontalAdvance(ToQt(form.Caption.Get())) * 5 / 4 +
                  9 * fontMetrics().height());
}

void FormDialog::AddButtons(QVBoxLayout* layout, QPushButton* ok, QPushButton* cancel) {
  cancel_ = cancel == nullptr ? ok : cancel;
  ok->setDefault(true);
  auto* const row = new QDialogButtonBox(this);
  row->addButton(ok, QDialogButtonBox::AcceptRole);
  if (cancel != nullptr) row->addButton(cancel, QDialogButtonBox::RejectRole);
  layout->addStretch();
  layout->addWidget(row);
}

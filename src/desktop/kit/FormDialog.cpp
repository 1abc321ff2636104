// See FormDialog.h.
#include "desktop/kit/FormDialog.h"

#include <QDialogButtonBox>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include "desktop/kit/ScrollPage.h"
#include "desktop/kit/Text.h"

FormDialog::FormDialog(Form& form, QWidget* parent)
    : QDialog(parent), page_(new QWidget(this)), column_(new QVBoxLayout(page_)) {
  setWindowModality(Qt::WindowModal);
  // The title is read whole, with the buttons of the title bar beside it.
  const int title =
      fontMetrics().horizontalAdvance(ToQt(form.Caption.Get())) * 5 / 4 + 9 * fontMetrics().height();
  setMinimumWidth(qMin(title, Room().width()));
}

QSize FormDialog::Room() const {
  const int em = fontMetrics().height();
  return screen()->availableSize() - QSize(em / 2, 2 * em);
}

void FormDialog::AddButtons(QPushButton* ok, QPushButton* cancel, QWidget* why) {
  cancel_ = cancel == nullptr ? ok : cancel;
  ok->setDefault(true);
  auto* const row = new QDialogButtonBox(this);
  row->addButton(ok, QDialogButtonBox::AcceptRole);
  if (cancel != nullptr) row->addButton(cancel, QDialogButtonBox::RejectRole);
  auto* const ending = new QWidget(this);
  auto* const lines = new QVBoxLayout(ending);
  lines->setContentsMargins({});
  if (why != nullptr) lines->addWidget(why);
  lines->addWidget(row);
  ScrollPage::Fill(this, page_, ending);
}

// By now the parts know their sizes. Large texts take more than the share of the screen that a dialog is
// given by itself.
void FormDialog::showEvent(QShowEvent* event) {
  QSize size = sizeHint() + QSize(1, 1);  // a screen of broken scale may round it down
  if (size.height() > Room().height()) size.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  if (testAttribute(Qt::WA_Resized)) size = size.expandedTo(this->size());  // as it was left
  resize(size.boundedTo(Room()));
  QDialog::showEvent(event);
}

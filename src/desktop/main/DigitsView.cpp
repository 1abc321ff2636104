// See DigitsView.h.
#include "desktop/main/DigitsView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

#include "desktop/kit/Bind.h"
#include "desktop/kit/Text.h"

namespace {

/// A question above the row of its answers.
template <class Options>
QWidget* Row(Label& question, Options& options, QWidget* parent) {
  auto* const group = new QWidget(parent);  // buttons of one parent exclude each other
  auto* const column = new QVBoxLayout(group);
  column->setContentsMargins(0, 0, 0, 0);
  QLabel* const label = Bind::Caption(question, group);
  column->addWidget(label);
  auto* const row = new QHBoxLayout;
  row->setContentsMargins(label->fontMetrics().averageCharWidth() * 2, 0, 0, 0);
  row->setSpacing(label->fontMetrics().averageCharWidth() * 4);
  for (int index = Options::Lower; index <= Options::Upper; ++index) {
    QRadioButton* const button = Bind::Option(options[index], group);
    button->setAccessibleDescription(label->text());
    if (!options[index].Value) button->setFocusPolicy(Qt::ClickFocus);  // Tab goes to the answer chosen
    row->addWidget(button);
  }
  row->addStretch();
  column->addLayout(row);
  return group;
}

template <class Options>
OptionButton& Chosen(Options& options) {
  int index = Options::Lower;
  while (index < Options::Upper && !options[index].Value) ++index;
  return options[index];
}

}  // namespace

DigitsView::DigitsView(frmDigits& form, QWidget* parent) : FormDialog(form, parent) {
  Column().setSpacing(fontMetrics().height());
  Column().addWidget(Row(form.lblSigDigs, form.optSigDigs, this));
  Column().addWidget(Row(form.lblEngDigs, form.optEngDigs, this));
  AddButtons(Bind::Push(form.cmdOK, this), Bind::Push(form.cmdCancel, this));
  findChild<QWidget*>(ToQt(Chosen(form.optSigDigs).Name()))->setFocus();
}

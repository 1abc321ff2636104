// See RangeSettingsView.h.
#include "desktop/rating/RangeSettingsView.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/kit/Bind.h"
#include "desktop/kit/Text.h"

RangeSettingsView::RangeSettingsView(RangeSettings& form, Label& vary, QWidget* parent)
    : FormDialog(form, parent), form_(form) {
  QLabel* const heading = Bind::Caption(form.lblSolveFor, this);
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  Column().addWidget(heading);

  group_ = Bind::Group(form.Frame1, this);
  Column().addWidget(group_);
  range_ = new QGridLayout(group_);
  range_->setColumnStretch(1, 1);
  QLabel* const caption = Bind::Caption(vary, group_, "v");
  QComboBox* const list = Bind::Combo(form.cbxVary, group_);
  caption->setBuddy(list);
  list->setAccessibleDescription(ToQt(vary.Caption.Get()));
  range_->addWidget(caption, 0, 0);
  range_->addWidget(list, 0, 1, 1, 2);
  AddRow(form.Label1, form.tbMin, "f", Bind::Caption(form.lblunits[0], group_));
  AddRow(form.Label2, form.tbMax, "l", Bind::Caption(form.lblunits[1], group_));
}

void RangeSettingsView::AddRow(Label& caption, TextBox& box, const char* mnemonics, QLabel* unit) {
  const int row = range_->rowCount();
  QLabel* const label = Bind::Caption(caption, group_, mnemonics);
  BoxEdit* const edit = Bind::Box(box, group_);
  edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  label->setBuddy(edit);
  range_->addWidget(label, row, 0);
  range_->addWidget(edit, row, 1);
  range_->addWidget(unit, row, 2);
  Label& unitControl = form_.lblunits[0];
  const auto describe = [&unitControl, &box, edit, unit] {
    unit->setText(Printed(unitControl.Caption.Get()));
    QStringList parts{unit->text(), ToQt(box.ToolTip.Get())};
    parts.removeAll(QString());
    edit->setAccessibleDescription(parts.join(QLatin1String(", ")));
  };
  Bind::Follow(unitControl.Caption, edit, describe);
  Bind::Follow(form_.lblunits[1].Caption, edit, describe);
  Bind::Follow(box.ToolTip, edit, describe);
}

QLabel* RangeSettingsView::SameUnit() {
  return new QLabel(group_);
}

void RangeSettingsView::AddLastUsed() {
  range_->addWidget(Bind::Push(form_.cmdLastUsed, group_, "u"), range_->rowCount(), 1, 1, 2);
}

void RangeSettingsView::Finish() {
  QLabel* const extent = Bind::Caption(form_.lblRange, this);
  extent->setWordWrap(true);
  // Its room is kept, so that the dialog does not jump while a number is typed.
  extent->setMinimumHeight(2 * fontMetrics().lineSpacing());
  Column().addWidget(extent);
  AddButtons(Bind::Push(form_.cmdOK, this), Bind::Push(form_.cmdCancel, this));
}

// See FindView.h.
#include "desktop/main/FindView.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/kit/Bind.h"
#include "desktop/kit/Text.h"

namespace {

struct BoxRow {
  Label& Name;
  TextBox& Box;
  Label& Unit;
  const char* Mnemonics;
};

void AddRow(QGridLayout& grid, const BoxRow& row, QWidget* parent) {
  const int at = grid.rowCount();
  QLabel* const name = Bind::Caption(row.Name, parent, row.Mnemonics);
  BoxEdit* const box = Bind::Box(row.Box, parent);
  box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  name->setBuddy(box);
  QLabel* const unit = Bind::Caption(row.Unit, parent);
  grid.addWidget(name, at, 0);
  grid.addWidget(box, at, 1);
  grid.addWidget(unit, at, 2);
  const auto describe = [box, &text = row.Box, &caption = row.Unit] {
    QStringList parts{Printed(caption.Caption.Get()), ToQt(text.ToolTip.Get())};
    parts.removeAll(QString());
    box->setAccessibleDescription(parts.join(QLatin1String(", ")));
  };
  Bind::Follow(row.Unit.Caption, box, describe);
  Bind::Follow(row.Box.ToolTip, box, describe);
}

}  // namespace

FindView::FindView(frmFind& form, QWidget* parent) : FormDialog(form, parent) {
  auto* const grid = new QGridLayout;
  grid->setColumnStretch(1, 1);
  QLabel* const find = Bind::Caption(form.lblFind, this, "i");
  QComboBox* const list = Bind::Combo(form.cbxFind, this);
  find->setBuddy(list);
  grid->addWidget(find, 0, 0);
  grid->addWidget(list, 0, 1, 1, 2);
  AddRow(*grid, {form.lblFlow, form.tbFlow, form.lblFlowUnits, "w"}, this);
  AddRow(*grid, {form.lblDepth, form.tbDepth, form.lblDepthUnits, "dv"}, this);
  AddRow(*grid, {form.lblFound, form.tbFound, form.lblFoundUnits, ""}, this);
  // The room of the longest name and number is kept, so that the dialog does not jump with the choice.
  grid->setColumnMinimumWidth(0, fontMetrics().horizontalAdvance(QStringLiteral("Right Side Slope ")));
  grid->setColumnMinimumWidth(1, fontMetrics().horizontalAdvance(QStringLiteral("123,456,789.12345678")));
  Column().addLayout(grid);
  QLabel* const status = Bind::Caption(form.lblStatus, this);
  status->setWordWrap(true);
  status->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  status->setMinimumHeight(2 * fontMetrics().lineSpacing());
  Column().addWidget(status);
  AddButtons(Bind::Push(form.cmdOK, this), Bind::Push(form.cmdCancel, this));
  list->setFocus();
}

// See MannParamView.h.
#include "desktop/MannParamView.h"

#include <QListWidget>
#include <QVBoxLayout>

#include "desktop/Bind.h"

MannParamView::MannParamView(frmMannParam& form, QWidget* parent) : FormDialog(parent) {
  auto* const column = new QVBoxLayout(this);
  QListWidget* const list = Bind::List(form.lstMannParam, this);
  list->setAccessibleName(tr("Typical values of Manning's n"));
  list->setUniformItemSizes(true);
  list->setSpacing(1);
  // Every line is seen at once, whatever the size of the text.
  const int frame = 2 * list->frameWidth();
  list->setMinimumSize(list->sizeHintForColumn(0) + frame + 2 * fontMetrics().averageCharWidth(),
                       list->count() * (list->sizeHintForRow(0) + 2 * list->spacing()) + frame);
  column->addWidget(list);
  AddButtons(column, Bind::Push(form.cmdOK, this), Bind::Push(form.cmdCancel, this));
  list->setFocus();
}

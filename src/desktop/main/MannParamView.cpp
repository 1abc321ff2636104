// See MannParamView.h.
#include "desktop/main/MannParamView.h"

#include <QListWidget>
#include <QVBoxLayout>

#include "desktop/kit/Bind.h"

MannParamView::MannParamView(frmMannParam& form, QWidget* parent) : FormDialog(form, parent) {
  QListWidget* const list = Bind::List(form.lstMannParam, this);
  list->setAccessibleName(tr("Typical values of Manning's n"));
  list->setUniformItemSizes(true);
  // Every line is seen at once, whatever the size of the text.
  list->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
  Column().addWidget(list);
  AddButtons(Bind::Push(form.cmdOK, this), Bind::Push(form.cmdCancel, this));
  list->setFocus();
}

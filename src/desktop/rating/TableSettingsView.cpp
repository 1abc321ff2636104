// See TableSettingsView.h.
#include "desktop/rating/TableSettingsView.h"

TableSettingsView::TableSettingsView(frmTableSettings& form, QWidget* parent)
    : RangeSettingsView(form, form.Label4, parent) {
  AddRow(form.Label3, form.tbIncrement, "s", SameUnit());
  AddLastUsed();
  Finish();
}

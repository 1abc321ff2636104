// See GraphSettingsView.h.
#include "desktop/rating/GraphSettingsView.h"

#include <QComboBox>
#include <QGroupBox>
#include <QVBoxLayout>

#include "desktop/kit/Bind.h"
#include "desktop/kit/Text.h"

GraphSettingsView::GraphSettingsView(frmGraphSettings& form, QWidget* parent)
    : RangeSettingsView(form, form.Label6, parent) {
  AddLastUsed();
  QGroupBox* const plot = Bind::Group(form.Frame2, this, "p");
  auto* const inside = new QVBoxLayout(plot);
  QComboBox* const list = Bind::Combo(form.cbxY, plot);
  list->setAccessibleDescription(ToQt(form.Frame2.Caption.Get()));
  inside->addWidget(list);
  Column().addWidget(plot);
  Finish();
}

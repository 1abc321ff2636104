// The window of frmImport.
#pragma once

#include "desktop/kit/FormDialog.h"
#include "section/frmImport.h"

class ImportView : public FormDialog {
 public:
  ImportView(frmImport& form, QWidget* parent);

 private:
  QWidget* ReadPart(frmImport& form);
  QWidget* DrawingPart(frmImport& form);
  QWidget* ChangesPart(frmImport& form);
};

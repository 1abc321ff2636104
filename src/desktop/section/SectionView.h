// The window of frmSection.
#pragma once

#include "desktop/kit/FormWindow.h"
#include "section/frmSection.h"

class SectionView : public FormWindow {
 public:
  SectionView(frmSection& form, QWidget* parent);
};

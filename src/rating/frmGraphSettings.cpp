// See frmGraphSettings.h.
#include "rating/frmGraphSettings.h"

#include "rating/PlotList.h"

frmGraphSettings::frmGraphSettings() : RangeSettings("frmGraphSettings") {
  Caption = "Rating Graph Settings";
  Label6.Caption = "Vary";
  Frame2.Caption = "Plot";
  cbxY.Click = [this] { cbxY_Click(); };
}

void frmGraphSettings::Form_Load() {
  RangeSettings::Form_Load();
  ShowPlotInForce(cbxY);
}

void frmGraphSettings::cbxY_Click() {
  RatingRange.GraphYColumn = PlottedColumn(cbxY);
  EnableOK();
}

std::string frmGraphSettings::Extent() const {
  return GraphExtent(InGraphSteps(TypedRange()));
}

void frmGraphSettings::cmdOK_Click() {
  RatingRange.RangeStep = InGraphSteps(TypedRange()).RangeStep;
  RangeSettings::cmdOK_Click();
}

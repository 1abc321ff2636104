// See frmGraphSettings.h.
#include "rating/frmGraphSettings.h"

#include <vector>

#include "app/Declarations.h"
#include "app/main/Fields.h"

namespace {

constexpr int Steps = 200;

/// What can be plotted, headed by the quantity solved for.
std::vector<const Field*> PlottedResults() {
  std::vector<const Field*> results;
  for (const Field& field : Fields()) {
    if (field.IsResult() && field.ListName != nullptr) results.push_back(&field);
  }
  return results;
}

}  // namespace

frmGraphSettings::frmGraphSettings() : RangeSettings("frmGraphSettings") {
  Caption = "Rating Graph Settings";
  Label6.Caption = "Vary";
  Frame2.Caption = "Plot";
  cbxY.Click = [this] { cbxY_Click(); };
}

void frmGraphSettings::Form_Load() {
  std::vector<std::string> names;
  int plotted = -1;
  for (const Field* const each : PlottedResults()) {
    if (each->RatingColumn == RatingRange.GraphYColumn) plotted = static_cast<int>(names.size());
    names.emplace_back(each->ListName);
  }
  cbxY.Items = names;
  RangeSettings::Form_Load();
  cbxY.ListIndex = plotted;
}

void frmGraphSettings::cbxY_Click() {
  RatingRange.GraphYColumn = PlottedResults()[static_cast<std::size_t>(cbxY.ListIndex)]->RatingColumn;
  EnableOK();
}

void frmGraphSettings::cmdOK_Click() {
  RatingRange.RangeStep = (Internal(tbMax) - Internal(tbMin)) / Steps;
  RangeSettings::cmdOK_Click();
}

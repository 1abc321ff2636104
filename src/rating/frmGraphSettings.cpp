// See frmGraphSettings.h.
#include "rating/frmGraphSettings.h"

#include <algorithm>
#include <array>

#include "app/Declarations.h"
#include "engine/ChannelState.h"

namespace {

constexpr int Steps = 200;

struct PlottedResult {
  const char* Name;
  int Column;  ///< of the rating columns
};

/// What can be plotted, headed by the quantity solved for.
std::array<PlottedResult, 9> PlottedResults() {
  return {{ChannelState.SolveForFlow ? PlottedResult{"Flow", 1} : PlottedResult{"Depth", 2},
           {"Velocity", 6},
           {"Velocity Head", 7},
           {"Area", 8},
           {"Wetted Perimeter", 9},
           {"Hydraulic Radius", 10},
           {"Top Width", 11},
           {"Froude No.", 12},
           {"Critical Depth", 13}}};
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
  for (const PlottedResult& each : PlottedResults()) {
    if (each.Column == RatingRange.GraphYColumn) plotted = static_cast<int>(names.size());
    names.emplace_back(each.Name);
  }
  cbxY.Items = names;
  RangeSettings::Form_Load();
  cbxY.ListIndex = plotted;
}

void frmGraphSettings::cbxY_Click() {
  RatingRange.GraphYColumn = PlottedResults()[static_cast<std::size_t>(cbxY.ListIndex)].Column;
  EnableOK();
}

void frmGraphSettings::cmdOK_Click() {
  RatingRange.RangeStep = (Internal(tbMax) - Internal(tbMin)) / Steps;
  RangeSettings::cmdOK_Click();
}

// The inputs as texts: edited, tidied, emptied, rewritten in other units, cut and pasted. See frmMain.h.
#include <cmath>
#include <initializer_list>

#include "app/Declarations.h"
#include "app/FormStuff.h"
#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "app/main/Loading.h"
#include "app/main/frmMain.h"
#include "engine/ChannelState.h"
#include "platform/Services.h"

namespace {

/// A typed length, flow or diameter in the unit system now in force. What is not a number, or too large for
/// one afterwards, stays as it is.
EngineValue InOtherUnits(const EngineValue& typed, int quantity, int metricDecimals, int englishDecimals) {
  const bool metric = ChannelState.UnitsEorM == Units::Metric;
  const int before = metric ? Units::English : Units::Metric;
  const double factor = UnitFactor(before, quantity) / UnitFactor(ChannelState.UnitsEorM, quantity);
  if (!std::isfinite(factor * typed.Number())) return typed;
  return FixedFormat(typed, factor, metric ? metricDecimals : englishDecimals);
}

}  // namespace

void frmMain::Input_Change() {
  Declarations::DataChanged = true;
  if (!loading_) CheckInputs();
}

void frmMain::Input_Validate() {
  FormatInputs();
}

void frmMain::FormatInputs() {
  TextBox& quantity = ChannelState.SolveForFlow ? tbDepth : tbFlow;
  for (TextBox* const box : {&quantity, &tbMann, &tbSlope, &tbDiameter, &tbBaseWidth, &tbSSR, &tbSSL}) {
    box->Text = FormStuff::AddLeadingZero(*box);
  }
}

void frmMain::WriteHiddenZeros() {
  const Loading loading(loading_);
  if (ChannelState.ChannelType == ChannelTypes::Rectangular) {
    tbSSR.Text = "0";
    tbSSL.Text = "0";
  } else if (ChannelState.ChannelType == ChannelTypes::Triangular) {
    tbBaseWidth.Text = "0";
  }
}

void frmMain::ResetForm() {
  Declarations::FileTitle = Declarations::FilePath = Declarations::Untitled;
  ShowTitle();
  {
    const Loading loading(loading_);
    for (TextBox* const box :
         {&tbProjName, &tbFlow, &tbDepth, &tbMann, &tbSlope, &tbDiameter, &tbBaseWidth}) {
      box->Text = "";
    }
    EmptySection();
    WriteHiddenZeros();
  }
  Declarations::DataChanged = false;
  CheckInputs();
}

void frmMain::SelectUnits(int units) {
  if (units == ChannelState.UnitsEorM) return;
  MarkProjectChanged();
  ChannelState.UnitsEorM = units;
  SetUnitsEorM();
  ConvertInput();
  CheckInputs();
}

void frmMain::mnuOptionsUnitsEnglish_Click() {
  SelectUnits(Units::English);
}
void frmMain::mnuOptionsUnitsMetric_Click() {
  SelectUnits(Units::Metric);
}

void frmMain::ConvertInput() {
  const Loading loading(loading_);
  struct Conversion {
    TextBox& Box;
    int Quantity, MetricDecimals, EnglishDecimals;
  };
  for (const Conversion& each : std::initializer_list<Conversion>{{tbFlow, Units::Flow, 3, 1},
                                                                  {tbDepth, Units::Length, 3, 2},
                                                                  {tbDiameter, Units::Diameter, 0, 1},
                                                                  {tbBaseWidth, Units::Length, 3, 2}}) {
    each.Box.Text =
        InOtherUnits(each.Box.Text.Get(), each.Quantity, each.MetricDecimals, each.EnglishDecimals).Text();
  }
  PointTable& points = ChannelState.IrregPoints;
  if (points[1][1] == EngineValue("")) return;
  for (std::size_t row = 1; row <= static_cast<std::size_t>(ChannelState.IrregPointCount); ++row) {
    for (const std::size_t column : {1U, 2U}) {
      points[row][column] = InOtherUnits(points[row][column], Units::Length, 3, 2);
    }
  }
}

void frmMain::mnuEditCut_Click() {
  mnuEditCopy_Click();
  mnuEditDelete_Click();
}

void frmMain::mnuEditCopy_Click() {
  const auto* const box = dynamic_cast<TextBox*>(ActiveControl());
  if (box == nullptr) return;
  TheServices().clipboard.Clear();
  TheServices().clipboard.SetText(box->SelectedText());
}

void frmMain::mnuEditPaste_Click() {
  auto* const box = dynamic_cast<TextBox*>(ActiveControl());
  if (box != nullptr && !box->Locked) box->ReplaceSelection(TheServices().clipboard.Text());
}

void frmMain::mnuEditDelete_Click() {
  auto* const box = dynamic_cast<TextBox*>(ActiveControl());
  if (box != nullptr && !box->Locked) box->ReplaceSelection("");
}

// What the main window shows for a channel type, a mode and a unit system. See frmMain.h.
#include "app/Declarations.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "app/main/UnitSystems.h"
#include "app/main/frmMain.h"

void frmMain::SetResultLook(TextBox& box, bool result) {
  box.BackColor = result ? TextBox::LightYellow : TextBox::White;
  box.Locked = result;
  box.Bold = result;
}

void frmMain::ToggleControls() {
  const ChannelType& current = CurrentChannelType();
  mnuSolveForFlow.Checked = ChannelState.SolveForFlow;
  mnuSolveForDepth.Checked = !ChannelState.SolveForFlow;
  lblChanType.Caption = ChannelState.ChannelType;
  for (const ChannelType& type : AllChannelTypes()) (this->*type.Item).Checked = &type == &current;
  for (const Field& field : Fields()) {
    TextBox& box = this->*field.Box;
    SetResultLook(box, field.IsResult());
    (this->*field.Name).Caption = field.Caption.Current();
    if (field.Result == ResultWhen::Always || current.Name.empty()) continue;
    const bool shown = current.Has(field);
    box.Visible = shown;
    (this->*field.Name).Visible = shown;
    if (field.Unit != nullptr) (this->*field.Unit).Visible = shown;
    if (field.Choose.Press != nullptr) (this->*field.Choose.Press).Visible = shown;
    // A box that is hidden keeps whether it is enabled.
    if (shown) box.Enabled = current.UseOf(field) == Use::Asked;
  }
  cmdIrreg.Visible = current.IsSurveyed();
}

void frmMain::SetUnitsEorM() {
  const int units = ChannelState.UnitsEorM;
  for (const UnitSystem& system : AllUnitSystems()) (this->*system.Item).Checked = system.Units == units;
  for (const Field& field : Fields()) {
    if (field.Unit != nullptr) (this->*field.Unit).Caption = UnitLabel(units, field.Quantity);
  }
}

void frmMain::SelectChannelType(const ChannelType& type) {
  if (ChannelState.ChannelType != type.Name) {
    MarkProjectChanged();
    ReadUnits();
    typed_.Texts.clear();
  }
  ChannelState.ChannelType = type.Name;
  const FocusControl* const left = ActiveControl();
  ToggleControls();
  WriteHiddenZeros();
  CheckInputs();
  ForgetEdits();
  FocusInput(left);
}

void frmMain::SelectSolveForFlow(bool solveForFlow) {
  if (ChannelState.SolveForFlow != solveForFlow) {
    MarkProjectChanged();
    ReadUnits();
    if (solveForFlow) {
      TurnIntoResult(tbFlow, tbDepth);
    } else {
      TurnIntoResult(tbDepth, tbFlow);
    }
  }
  ChannelState.SolveForFlow = solveForFlow;
  ToggleControls();
  CheckInputs();
  ForgetEdits();
  FocusInput(ActiveControl());
}

void frmMain::TurnIntoResult(const TextBox& input, TextBox& result) {
  if (typed_.Points != ChannelState.IrregPoints) typed_.Texts.clear();
  // Still locked, so that this is no edit.
  if (const auto typed = typed_.Texts.find(&result); typed != typed_.Texts.end()) result.Text = typed->second;
  typed_.Texts[&input] = input.Text;
  typed_.Points = ChannelState.IrregPoints;
}

void frmMain::MarkProjectChanged() {
  ForgetNews();
  if (Declarations::FileTitle != Declarations::Untitled) Declarations::DataChanged = true;
}

void frmMain::mnuSolveForFlow_Click() {
  OneStep([this] { SelectSolveForFlow(true); });
}
void frmMain::mnuSolveForDepth_Click() {
  OneStep([this] { SelectSolveForFlow(false); });
}
void frmMain::mnuSolveGraph_Click() {
  if (ReadFor(mnuSolveGraph)) windows_.OpenGraph();
}
void frmMain::mnuSolveTable_Click() {
  if (ReadFor(mnuSolveTable)) windows_.OpenTable();
}
void frmMain::mnuSolveSection_Click() {
  if (ReadFor(mnuSolveSection)) windows_.OpenSection();
}
void frmMain::mnuSolveWorking_Click() {
  ReadUnits();
  windows_.OpenWorking();
}
void frmMain::mnuSolveFind_Click() {
  ReadUnits();
  OneStep([this] { windows_.OpenFind(); });
}
void frmMain::cmdIrreg_Click() {
  const PointTable before = ChannelState.IrregPoints;
  OneStep([this] { windows_.OpenIrreg(); });
  if (before == ChannelState.IrregPoints) return;
  status_.Edited();
  ShowStatus();
}
void frmMain::cmdMannParams_Click() {
  OneStep([this] { windows_.OpenMannParam(); });
}

void frmMain::mnuOptionsDigits_Click() {
  const int sigDigs = Declarations::SigDigs;
  const int engDigs = Declarations::EngDigs;
  OneStep([this] { windows_.OpenDigits(); });
  if (sigDigs != Declarations::SigDigs || engDigs != Declarations::EngDigs) MarkProjectChanged();
}

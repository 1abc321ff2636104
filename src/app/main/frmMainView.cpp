// What the main window shows for a channel type, a mode and a unit system. See frmMain.h.
#include <initializer_list>

#include "app/Declarations.h"
#include "app/FormStuff.h"
#include "app/Units.h"
#include "app/main/frmMain.h"
#include "engine/ChannelState.h"

namespace {

/// How a channel type shows the inputs that not every type has.
struct Layout {
  std::string_view Type;
  MenuItem frmMain::*Item;
  const char* DepthCaption;
  const char* CriticalDepthCaption;
  bool SideSlopes, SideSlopesEnabled, BaseWidth, BaseWidthEnabled, Diameter, Points, ManningN;
};

constexpr Layout Layouts[] = {
    {ChannelTypes::Circular, &frmMain::mnuOptionsCircular, "Depth", "Critical Depth",  //
     false, false, false, false, true, false, true},
    {ChannelTypes::Irregular, &frmMain::mnuOptionsIrreg, "WSElev", "Critical WSElev",  //
     false, false, false, false, false, true, false},
    {ChannelTypes::Trapezoidal, &frmMain::mnuOptionsTrap, "Depth", "Critical Depth",  //
     true, true, true, true, false, false, true},
    {ChannelTypes::Rectangular, &frmMain::mnuOptionsRect, "Depth", "Critical Depth",  //
     true, false, true, true, false, false, true},
    {ChannelTypes::Triangular, &frmMain::mnuOptionsTriangular, "Depth", "Critical Depth",  //
     true, true, true, false, false, false, true},
};

void Show(bool visible, std::initializer_list<Control*> controls) {
  for (Control* const control : controls) control->Visible = visible;
}

/// The quantity solved for looks like a result and cannot be typed into.
void SetResultLook(TextBox& box, bool result) {
  box.BackColor = result ? TextBox::LightYellow : TextBox::White;
  box.Locked = result;
  box.Bold = result;
}

}  // namespace

void frmMain::ToggleControls() {
  const bool solveForFlow = ChannelState.SolveForFlow;
  mnuSolveForFlow.Checked = solveForFlow;
  mnuSolveForDepth.Checked = !solveForFlow;
  SetResultLook(tbFlow, solveForFlow);
  SetResultLook(tbDepth, !solveForFlow);
  lblChanType.Caption = ChannelState.ChannelType;

  for (const Layout& layout : Layouts) {
    const bool current = layout.Type == ChannelState.ChannelType;
    (this->*layout.Item).Checked = current;
    if (!current) continue;
    lblDepth.Caption = layout.DepthCaption;
    lblCritD.Caption = layout.CriticalDepthCaption;
    Show(layout.SideSlopes, {&lblSSL, &tbSSL, &lblSSR, &tbSSR});
    Show(layout.BaseWidth, {&lblBaseWidth, &tbBaseWidth, &lblBaseWidthUnits});
    Show(layout.Diameter, {&lblDiameter, &tbDiameter, &lblDiameterUnits});
    Show(layout.Points, {&cmdIrreg});
    Show(layout.ManningN, {&lblMann, &tbMann, &cmdMannParams});
    // Boxes that are hidden keep whether they are enabled.
    if (layout.SideSlopes) {
      tbSSL.Enabled = layout.SideSlopesEnabled;
      tbSSR.Enabled = layout.SideSlopesEnabled;
    }
    if (layout.BaseWidth) tbBaseWidth.Enabled = layout.BaseWidthEnabled;
  }
}

void frmMain::SetUnitsEorM() {
  const int units = ChannelState.UnitsEorM;
  mnuOptionsUnitsEnglish.Checked = units == Units::English;
  mnuOptionsUnitsMetric.Checked = units == Units::Metric;
  struct UnitCaption {
    Label& Of;
    int Quantity;
  };
  // The critical slope is divided by the length factor as the lengths are, and captioned like them.
  for (const UnitCaption& each : std::initializer_list<UnitCaption>{{lblFlowUnits, Units::Flow},
                                                                    {lblDepthUnits, Units::Length},
                                                                    {lblSlopeUnits, Units::Slope},
                                                                    {lblDiameterUnits, Units::Diameter},
                                                                    {lblBaseWidthUnits, Units::Length},
                                                                    {lblFlowAreaUnits, Units::Area},
                                                                    {lblVelocityUnits, Units::Velocity},
                                                                    {lblVelHeadUnits, Units::Length},
                                                                    {lblHRadUnits, Units::Length},
                                                                    {lblTopWUnits, Units::Length},
                                                                    {lblWPunits, Units::Length},
                                                                    {lblCritdUnits, Units::Length},
                                                                    {lblCritSUnits, Units::Length}}) {
    each.Of.Caption = UnitLabel(units, each.Quantity);
  }
}

void frmMain::SelectChannelType(std::string_view type) {
  if (ChannelState.ChannelType != type) MarkProjectChanged();
  ChannelState.ChannelType = type;
  ToggleControls();
  WriteHiddenZeros();
  CheckInputs();
}

void frmMain::SelectSolveForFlow(bool solveForFlow) {
  if (ChannelState.SolveForFlow != solveForFlow) MarkProjectChanged();
  ChannelState.SolveForFlow = solveForFlow;
  ToggleControls();
  CheckInputs();
}

void frmMain::MarkProjectChanged() {
  if (Declarations::FileTitle != Declarations::Untitled) Declarations::DataChanged = true;
}

void frmMain::mnuOptionsRect_Click() {
  SelectChannelType(ChannelTypes::Rectangular);
}
void frmMain::mnuOptionsTriangular_Click() {
  SelectChannelType(ChannelTypes::Triangular);
}
void frmMain::mnuOptionsTrap_Click() {
  SelectChannelType(ChannelTypes::Trapezoidal);
}
void frmMain::mnuOptionsCircular_Click() {
  SelectChannelType(ChannelTypes::Circular);
}
void frmMain::mnuOptionsIrreg_Click() {
  SelectChannelType(ChannelTypes::Irregular);
}
void frmMain::mnuSolveForFlow_Click() {
  SelectSolveForFlow(true);
}
void frmMain::mnuSolveForDepth_Click() {
  SelectSolveForFlow(false);
}
void frmMain::mnuSolveGraph_Click() {
  windows_.OpenGraph();
}
void frmMain::mnuSolveTable_Click() {
  windows_.OpenTable();
}
void frmMain::mnuSolveSection_Click() {
  windows_.OpenSection();
}
void frmMain::cmdIrreg_Click() {
  windows_.OpenIrreg();
}
void frmMain::cmdMannParams_Click() {
  windows_.OpenMannParam();
}

void frmMain::mnuOptionsDigits_Click() {
  const int sigDigs = Declarations::SigDigs;
  const int engDigs = Declarations::EngDigs;
  windows_.OpenDigits();
  if (sigDigs != Declarations::SigDigs || engDigs != Declarations::EngDigs) MarkProjectChanged();
}

// See ReportLines.h.
#include "print/ReportLines.h"

#include "app/Units.h"
#include "engine/ChannelState.h"

namespace {

constexpr ReportLine Flow{&frmMain::lblFlow, &frmMain::tbFlow, Units::Flow};
constexpr ReportLine Depth{&frmMain::lblDepth, &frmMain::tbDepth, Units::Length};
constexpr ReportLine Slope{&frmMain::lblSlope, &frmMain::tbSlope, Units::Slope};
constexpr ReportLine ManningN{&frmMain::lblMann, &frmMain::tbMann, Units::Dimensionless};
constexpr ReportLine Diameter{&frmMain::lblDiameter, &frmMain::tbDiameter, Units::Diameter};
constexpr ReportLine BaseWidth{&frmMain::lblBaseWidth, &frmMain::tbBaseWidth, Units::BaseWidth};
constexpr ReportLine SlopeRight{&frmMain::lblSSR, &frmMain::tbSSR, ReportLine::HorizontalToOne};
constexpr ReportLine SlopeLeft{&frmMain::lblSSL, &frmMain::tbSSL, ReportLine::HorizontalToOne};

constexpr ReportLine PipeInputs[] = {Flow, Depth, Slope, ManningN, Diameter};
constexpr ReportLine TrapezoidInputs[] = {Flow, Depth, Slope, ManningN, BaseWidth, SlopeRight, SlopeLeft};
constexpr ReportLine RectangleInputs[] = {Flow, Depth, Slope, ManningN, BaseWidth};
constexpr ReportLine TriangleInputs[] = {Flow, Depth, Slope, ManningN, SlopeRight, SlopeLeft};
constexpr ReportLine SectionInputs[] = {Flow, Depth, Slope};

struct InputsOfType {
  std::string_view Type;
  std::span<const ReportLine> Lines;
};

constexpr InputsOfType Inputs[] = {
    {ChannelTypes::Circular, PipeInputs},         {ChannelTypes::Trapezoidal, TrapezoidInputs},
    {ChannelTypes::Rectangular, RectangleInputs}, {ChannelTypes::Triangular, TriangleInputs},
    {ChannelTypes::Irregular, SectionInputs},
};

// On paper the critical slope has the unit of a slope.
constexpr ReportLine Results[] = {
    {&frmMain::lblVelocity, &frmMain::tbVelocity, Units::Velocity},
    {&frmMain::lblVelHead, &frmMain::tbVelHead, Units::Length},
    {&frmMain::lblArea, &frmMain::tbArea, Units::Area},
    {&frmMain::lblWP, &frmMain::tbWP, Units::Length},
    {&frmMain::lblHRad, &frmMain::tbHRad, Units::Length},
    {&frmMain::lblTopW, &frmMain::tbTopW, Units::Length},
    {&frmMain::lblFroude, &frmMain::tbFroude, Units::Dimensionless},
    {&frmMain::lblCritD, &frmMain::tbCritD, Units::Length},
    {&frmMain::lblCritS, &frmMain::tbCritS, Units::Slope},
};

}  // namespace

std::string ReportLine::Value(const frmMain& main) const {
  const std::string& text = (main.*Box).Text;
  if (Quantity == HorizontalToOne) return text + ":1";
  if (Quantity == Units::Dimensionless) return text;
  return text + " " + UnitLabel(ChannelState.UnitsEorM, Quantity);
}

std::span<const ReportLine> ReportInputs() {
  for (const InputsOfType& each : Inputs) {
    if (each.Type == ChannelState.ChannelType) return each.Lines;
  }
  return {};
}

std::span<const ReportLine> ReportResults() {
  return Results;
}

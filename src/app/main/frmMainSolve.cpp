// Checking the inputs, solving the channel and showing the results. See frmMain.h.
#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <span>
#include <utility>

#include "app/Declarations.h"
#include "app/FormStuff.h"
#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "app/main/frmMain.h"
#include "engine/ChannelState.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/ManningCircular.h"
#include "engine/NumberText.h"
#include "engine/SolveChannel.h"

namespace {

using FormStuff::Range;

constexpr Range Positive{0.0, false, {}, false};
constexpr Range NotNegative{0.0, true, {}, false};
constexpr Range BetweenZeroAndOne{0.0, false, 1.0, false};

enum Shapes : unsigned { Pipe = 1, Prism = 2, Section = 4 };

Shapes ShapeOf(std::string_view type) {
  if (type == ChannelTypes::Circular) return Pipe;
  return type == ChannelTypes::Irregular ? Section : Prism;
}

enum class Solving { Always, ForDepth, ForFlow };

/// What an input box must hold, for which channels and in which mode.
struct Bound {
  TextBox frmMain::*Box;
  Label frmMain::*Name;
  Range Allowed;
  unsigned For;
  Solving When = Solving::Always;

  bool Applies() const {
    const Solving mode = ChannelState.SolveForFlow ? Solving::ForFlow : Solving::ForDepth;
    return (For & ShapeOf(ChannelState.ChannelType)) != 0 && (When == Solving::Always || When == mode);
  }
};

constexpr Bound Bounds[] = {
    {&frmMain::tbFlow, &frmMain::lblFlow, Positive, Pipe | Prism | Section, Solving::ForDepth},
    {&frmMain::tbDepth, &frmMain::lblDepth, Positive, Pipe | Prism, Solving::ForFlow},
    {&frmMain::tbSlope, &frmMain::lblSlope, BetweenZeroAndOne, Pipe | Prism | Section},
    {&frmMain::tbMann, &frmMain::lblMann, BetweenZeroAndOne, Pipe | Prism},
    {&frmMain::tbDiameter, &frmMain::lblDiameter, Positive, Pipe},
    {&frmMain::tbBaseWidth, &frmMain::lblBaseWidth, NotNegative, Prism},
    {&frmMain::tbSSL, &frmMain::lblSSL, NotNegative, Prism},
    {&frmMain::tbSSR, &frmMain::lblSSR, NotNegative, Prism},
};

struct Result {
  TextBox frmMain::*Box;
  EngineValue ChannelRecord::*Value;
  int Quantity;
  bool FixedDecimals;
};

constexpr Result FlowResult{&frmMain::tbFlow, &ChannelRecord::Flow, Units::Flow, false};
constexpr Result DepthResult{&frmMain::tbDepth, &ChannelRecord::Depth, Units::Length, true};
constexpr Result Results[] = {
    {&frmMain::tbVelocity, &ChannelRecord::Velocity, Units::Velocity, false},
    {&frmMain::tbVelHead, &ChannelRecord::VelocityHead, Units::Length, false},
    {&frmMain::tbArea, &ChannelRecord::Area, Units::Area, false},
    {&frmMain::tbWP, &ChannelRecord::WettedPerimeter, Units::Length, false},
    {&frmMain::tbHRad, &ChannelRecord::HydraulicRadius, Units::Length, false},
    {&frmMain::tbTopW, &ChannelRecord::TopWidth, Units::Length, false},
    {&frmMain::tbFroude, &ChannelRecord::Froude, Units::Dimensionless, false},
    {&frmMain::tbCritD, &ChannelRecord::CriticalDepth, Units::Length, true},
    {&frmMain::tbCritS, &ChannelRecord::CriticalSlope, Units::Length, false},
};

double FactorOf(int quantity) {
  return UnitFactor(ChannelState.UnitsEorM, quantity);
}

/// A typed number in feet and seconds; a text that is not a number counts its leading number.
double Internal(const TextBox& box, int quantity) {
  return LeadingNumber(box.Text.Get()) * FactorOf(quantity);
}

bool InRange(const TextBox& box, const Range& allowed) {
  return FormStuff::CheckRange(box.Text.Get(), allowed.Min, allowed.MinInclusive, allowed.Max,
                               allowed.MaxInclusive, false);
}

}  // namespace

void frmMain::CheckInputs() {
  std::string reason = MarkOffences();
  if (reason.empty()) {
    try {
      ComputeResults();
      reason = Outcome();
    } catch (const EngineFault& fault) {
      ClearResults();
      reason = std::string("No result: ") + fault.what();
    }
  } else {
    ClearResults();
  }
  const bool solved = !tbArea.Text.Get().empty();
  for (Control* const command :
       std::initializer_list<Control*>{&mnuSolveGraph, &mnuSolveTable, &mnuSolveSection, &Toolbar1.Graph,
                                       &Toolbar1.Table, &Toolbar1.Section}) {
    command->Enabled = solved;
  }
  lblStatus.Caption = reason;
}

std::string frmMain::MarkOffences() {
  const std::string_view type = ChannelState.ChannelType;
  const bool section = type == ChannelTypes::Irregular;
  std::string first;
  if (std::ranges::find(ChannelTypes::All, type) == ChannelTypes::All.end()) first = "Choose a channel type";
  if (section && ChannelState.IrregPoints[1][1] == EngineValue("")) first = "Enter the points of the section";
  for (const Bound& bound : Bounds) {
    TextBox& box = this->*bound.Box;
    std::string offence;
    if (section && ChannelState.SolveForFlow && &box == &tbDepth) {
      offence = WaterSurfaceOffence();
    } else if (bound.Applies() && !InRange(box, bound.Allowed)) {
      offence = (this->*bound.Name).Caption.Get() + " must be" + FormStuff::RangeText(bound.Allowed);
    }
    // An empty box is a question, not a mistake.
    box.Offending = !offence.empty() && !box.Text.Get().empty();
    box.ToolTip = offence;
    if (first.empty()) first = std::move(offence);
  }
  return first;
}

std::string frmMain::WaterSurfaceOffence() const {
  const EngineValue level(tbDepth.Text);
  const auto points =
      std::span(ChannelState.IrregPoints).subspan(1, static_cast<std::size_t>(ChannelState.IrregPointCount));
  const bool below =
      std::ranges::any_of(points, [&](const auto& point) { return point[2].Number() > level.Number(); });
  return level.IsNumeric() && below ? "" : "WSElev must be below the highest point of the section";
}

void frmMain::InputToGlobal() {
  ChannelRecord& record = ChannelState;
  if (record.SolveForFlow) {
    record.Depth = Internal(tbDepth, Units::Length);
  } else {
    record.Flow = Internal(tbFlow, Units::Flow);
  }
  record.ManningN = tbMann.Text.Get();
  record.Slope = tbSlope.Text.Get();
  record.SideSlopeLeft = tbSSL.Text.Get();
  record.SideSlopeRight = tbSSR.Text.Get();
  record.Diameter = Internal(tbDiameter, Units::Diameter);
  record.BaseWidth = Internal(tbBaseWidth, Units::Length);
  FillPipe();
  for (std::size_t row = 1; row <= static_cast<std::size_t>(record.IrregPointCount); ++row) {
    const auto& typed = record.IrregPoints[row];
    auto& point = record.IrregEnginePoints[row];
    point[1] = typed[1].Number() * FactorOf(Units::Length);
    point[2] = typed[2].Number() * FactorOf(Units::Length);
    if (typed[3] != EngineValue("")) point[3] = typed[3].Number();
  }
}

void frmMain::FillPipe() {
  if (ChannelState.ChannelType != ChannelTypes::Circular) return;
  const double depth = ChannelState.Depth.Number();
  const double diameter = ChannelState.Diameter.Number();
  if (std::abs(depth - diameter) <= 1e-12 * std::abs(diameter)) ChannelState.Depth = ChannelState.Diameter;
}

void frmMain::ComputeResults() {
  InputToGlobal();
  SolveChannel();
  const auto show = [this](const Result& result) {
    (this->*result.Box).Text = ShownNumber(ChannelState.*result.Value, result.Quantity, result.FixedDecimals);
  };
  show(ChannelState.SolveForFlow ? FlowResult : DepthResult);
  for (const Result& result : Results) show(result);
  tbCritS.ToolTip = CriticalSlopeNote();
  EnablePrint(true);
}

std::string frmMain::CriticalSlopeNote() const {
  if (ChannelState.ChannelType == ChannelTypes::Irregular) return "A surveyed section has no critical slope";
  if (ChannelState.UnitsEorM != Units::Metric || !ChannelState.CriticalSlope.IsNumeric()) return "";
  return "Critical slope: " + ShownNumber(ChannelState.CriticalSlope, Units::Slope, false) + " " +
         UnitLabel(Units::Metric, Units::Slope);
}

void frmMain::ClearResults() {
  for (const Result& result : Results) (this->*result.Box).Text = "";
  (ChannelState.SolveForFlow ? tbFlow : tbDepth).Text = "";
  tbCritS.ToolTip = "";
  EnablePrint(false);
}

void frmMain::EnablePrint(bool enabled) {
  mnuFilePrint.Enabled = enabled;
  mnuFilePrintPreview.Enabled = enabled;
  Toolbar1.Print.Enabled = enabled;
}

std::string frmMain::Outcome() const {
  const bool solveForFlow = ChannelState.SolveForFlow;
  if (!tbArea.Text.Get().empty()) {
    const std::string solved = solveForFlow ? "Flow solved" : "Depth solved";
    const std::string& note = tbCritS.ToolTip.Get();
    return note.empty() ? solved : solved + ". " + note;
  }
  if (solveForFlow) return "Overflow: the depth is above the crown of the pipe";
  if (ChannelState.ChannelType == ChannelTypes::Circular) {
    const double greatest = ManningCircular::CircMaxFlow(
        ChannelState.Diameter.Number(), ChannelState.Slope.Number(), ChannelState.ManningN.Number());
    return "Overflow: the pipe carries at most " + ShownNumber(greatest, Units::Flow, false) + " " +
           lblFlowUnits.Caption.Get() + ", at 0.938 of its diameter";
  }
  return "Overflow: the channel does not carry this flow within " +
         FixedFormat(Constants::DeepestResult, 1 / FactorOf(Units::Length), 0).Text() + " " +
         lblDepthUnits.Caption.Get() + " of depth";
}

// Checking the inputs, solving the channel and showing the results. See frmMain.h.
#include <cmath>
#include <initializer_list>
#include <utility>

#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "app/main/frmMain.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/ManningCircular.h"
#include "engine/NumberText.h"
#include "engine/SolveChannel.h"

namespace {

double FactorOf(int quantity) {
  return UnitFactor(ChannelState.UnitsEorM, quantity);
}

}  // namespace

void frmMain::CheckInputs() {
  std::string reason = MarkOffences();
  solved_ = false;
  if (reason.empty()) {
    try {
      ComputeResults();
      solved_ = ChannelState.Area.IsNumeric();
      reason = Outcome();
    } catch (const EngineFault& fault) {
      ClearResults();
      reason = std::string("No result: ") + fault.what();
    }
  } else {
    ClearResults();
  }
  for (Control* const command :
       std::initializer_list<Control*>{&mnuSolveGraph, &mnuSolveTable, &mnuSolveSection, &Toolbar1.Graph,
                                       &Toolbar1.Table, &Toolbar1.Section}) {
    command->Enabled = solved_;
  }
  lblStatus.Caption = reason;
}

frmMain::Progress frmMain::CurrentProgress() const {
  if (solved_) return Progress::Solved;
  bool missing = false;
  bool wrong = false;
  for (const Field& field : Fields()) {
    if (!CurrentChannelType().AsksFor(field)) continue;
    missing = missing || (this->*field.Box).Text.Get().empty();
    wrong = wrong || (this->*field.Box).Offending;
  }
  return missing && !wrong ? Progress::Missing : Progress::Wrong;
}

std::string frmMain::MarkOffences() {
  const ChannelType& type = CurrentChannelType();
  std::string first;
  if (type.Name.empty()) first = "Choose a channel type";
  if (type.IsSurveyed() && ChannelState.IrregPoints[1][1] == EngineValue("")) {
    first = "Enter the points of the section";
  }
  for (const Field& field : Fields()) {
    if (field.Result == ResultWhen::Always) continue;
    TextBox& box = this->*field.Box;
    std::string offence = OffenceOf(field);
    // An empty box is a question, not a mistake.
    box.Offending = !offence.empty() && !box.Text.Get().empty();
    box.ToolTip = offence;
    if (first.empty()) first = std::move(offence);
  }
  return first;
}

std::string frmMain::OffenceOf(const Field& field) const {
  const ChannelType& type = CurrentChannelType();
  if (field.IsResult() || !type.Has(field)) return "";
  const std::string& typed = (this->*field.Box).Text;
  if (field.IsElevation()) return field.SurveyedOffence(typed);
  const FormStuff::Range& allowed = field.Bounds;
  const bool within = FormStuff::CheckRange(typed, allowed.Min, allowed.MinInclusive, allowed.Max,
                                            allowed.MaxInclusive, false);
  return within ? "" : (this->*field.Name).Caption.Get() + " must be" + FormStuff::RangeText(allowed);
}

void frmMain::InputToGlobal() {
  ChannelRecord& record = ChannelState;
  for (const Field& field : Fields()) {
    if (field.IsResult()) continue;
    const std::string& typed = (this->*field.Box).Text;
    const bool converted = TypedDecimals(record.UnitsEorM, field.Quantity).has_value();
    record.*field.Cell =
        converted ? EngineValue(LeadingNumber(typed) * FactorOf(field.Quantity)) : EngineValue(typed);
  }
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
  if (CurrentChannelType().Is != Shape::Pipe) return;
  const double depth = ChannelState.Depth.Number();
  const double diameter = ChannelState.Diameter.Number();
  if (std::abs(depth - diameter) <= 1e-12 * std::abs(diameter)) ChannelState.Depth = ChannelState.Diameter;
}

void frmMain::ComputeResults() {
  InputToGlobal();
  SolveChannel();
  for (const Field& field : Fields()) {
    if (field.IsInput()) continue;
    (this->*field.Box).Text = ShownNumber(ChannelState.*field.Cell, field.Quantity, field.FixedDecimals);
  }
  tbCritS.ToolTip = CriticalSlopeNote();
  EnablePrint(true);
}

std::string frmMain::CriticalSlopeNote() const {
  if (CurrentChannelType().IsSurveyed()) return "A surveyed section has no critical slope";
  const Field& field = FieldOf(&frmMain::tbCritS);
  const bool asItIs = FactorOf(field.Quantity) == FactorOf(field.PageQuantity);
  if (asItIs || !ChannelState.CriticalSlope.IsNumeric()) return "";
  return "Critical slope: " + ShownNumber(ChannelState.CriticalSlope, field.PageQuantity, false) + " " +
         UnitLabel(ChannelState.UnitsEorM, field.PageQuantity);
}

void frmMain::ClearResults() {
  for (const Field& field : Fields()) {
    if (field.IsResult()) (this->*field.Box).Text = "";
  }
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
  if (solved_) {
    const std::string solved = solveForFlow ? "Flow solved" : "Depth solved";
    const std::string note = CriticalSlopeNote();
    return note.empty() ? solved : solved + ". " + note;
  }
  if (solveForFlow) return "Overflow: the depth is above the crown of the pipe";
  if (CurrentChannelType().Is == Shape::Pipe) {
    const double greatest = ManningCircular::CircMaxFlow(
        ChannelState.Diameter.Number(), ChannelState.Slope.Number(), ChannelState.ManningN.Number());
    return "Overflow: the pipe carries at most " + ShownNumber(greatest, Units::Flow, false) + " " +
           lblFlowUnits.Caption.Get() + ", at 0.938 of its diameter";
  }
  return "Overflow: the channel does not carry this flow within " +
         FixedFormat(Constants::DeepestResult, 1 / FactorOf(Units::Length), 0).Text() + " " +
         lblDepthUnits.Caption.Get() + " of depth";
}

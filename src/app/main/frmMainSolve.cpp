// Checking the inputs, solving the channel and showing the results. See frmMain.h.
#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

#include "app/Declarations.h"
#include "app/FormStuff.h"
#include "app/LastUsed.h"
#include "app/NoteSpelling.h"
#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "app/main/Problem.h"
#include "app/main/Reasons.h"
#include "app/main/frmMain.h"
#include "engine/EngineFault.h"
#include "engine/SolveChannel.h"

namespace {

std::string LowerCase(std::string text) {
  for (char& c : text) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return text;
}

double FactorOf(int quantity) {
  return UnitFactor(ChannelState.UnitsEorM, quantity);
}

}  // namespace

void frmMain::CheckInputs() {
  LastUsed();  // forgets what was used for another channel type
  std::string whyNone = MarkOffences();
  solved_ = false;
  if (whyNone.empty()) {
    whyNone = Solve();
  } else {
    ClearResults();
    EnablePrint(readable_);
  }
  CurrentProgress = FindProgress();
  ExplainResults(whyNone);
  found_ = solved_ ? Examine(ChannelState) : Findings{};
  notes_ = NotesOn(found_, NoteSpelling());
  for (Control* const command :
       std::initializer_list<Control*>{&mnuSolveGraph, &mnuSolveTable, &mnuSolveSection, &Toolbar1.Graph,
                                       &Toolbar1.Table, &Toolbar1.Section, &mnuEditCopyResults}) {
    command->Enabled = solved_ || readable_;
  }
  std::string verdict;
  if (solved_) {
    verdict = ::Verdict(found_, notes_);
    if (const std::string& note = tbCritS.ToolTip; !note.empty()) verdict += ". " + note;
  }
  status_.Set(StatusLine::NoResult, whyNone);
  status_.Set(StatusLine::Verdict, verdict);
  ShowStatus();
  cmdNotes.Caption = NoteCount(notes_);
  cmdNotes.Visible = !cmdNotes.Caption.Get().empty();
  ShowNotesOnBoxes();
  windows_.FollowAnswer();
}

void frmMain::ShowStatus() {
  status_.Set(StatusLine::Done, Declarations::Done);
  lblStatus.Caption = status_.Text();
}

void frmMain::ShowNotesOnBoxes() {
  for (const Note& note : notes_) {
    for (const Field& field : Fields()) {
      if (std::ranges::find(note.Concerns, field.Cell) == note.Concerns.end()) continue;
      const std::string& tip = (this->*field.Box).ToolTip;
      (this->*field.Box).ToolTip = tip.empty() ? note.Short : tip + "\n" + note.Short;
    }
  }
}

void frmMain::TellFailure(const std::string& failure) {
  status_.Set(StatusLine::FileError, failure);
  ShowStatus();
}

void frmMain::ForgetNews() {
  status_.Edited();
  Declarations::Done.clear();
  ShowStatus();
}

std::string frmMain::Solve() {
  try {
    ComputeResults();
    solved_ = ChannelState.Area.IsNumeric();
    return solved_ ? "" : "Overflow: " + Blame(WhyNoResult({}));
  } catch (const EngineFault& fault) {
    ClearResults();
    return "No result: " + Blame(WhyNoResult(fault.what()));
  }
}

std::string frmMain::Blame(const Reason& reason) {
  if (reason.Box != nullptr) {
    (this->*reason.Box).Offending = true;
    (this->*reason.Box).ToolTip = Sentence(reason.Text);
  }
  return reason.Text;
}

void frmMain::ExplainResults(const std::string& whyNone) {
  for (const Field& field : Fields()) {
    if (field.IsResult()) (this->*field.Box).ToolTip = whyNone.empty() ? NoteOn(field) : whyNone;
  }
}

std::string frmMain::NoteOn(const Field& result) {
  const EngineValue& value = ChannelState.*result.Cell;
  if (!value.IsNumeric()) return Sentence(WhyBlank(result.Cell).Text);
  if (FactorOf(result.Quantity) == FactorOf(result.PageQuantity)) return "";
  return Sentence(LowerCase(result.Caption.Current())) + ": " +
         WithUnit(ShownNumber(value, result.PageQuantity, false), result.PageQuantity);
}

frmMain::Progress frmMain::FindProgress() const {
  if (solved_) return Progress::Solved;
  bool missing = false;
  bool wrong = false;
  for (const Field& field : Fields()) {
    if (!CurrentChannelType().AsksFor(field)) continue;
    missing = missing || (this->*field.Box).Text.Get().empty() || Unread(field);
    wrong = wrong || (this->*field.Box).Offending;
  }
  return missing && !wrong ? Progress::Missing : Progress::Wrong;
}

std::string frmMain::MarkOffences() {
  std::string first = Problem::OffenceOfSection();
  std::string unread;
  for (const Field& field : Fields()) {
    if (field.Result == ResultWhen::Always) continue;
    std::string offence = OffenceOf(field);
    const bool isUnread = Unread(field).has_value();
    FormStuff::Mark(this->*field.Box, offence, !isUnread);
    std::string& reason = isUnread ? unread : first;
    if (reason.empty()) reason = std::move(offence);
  }
  readable_ = first.empty() && !unread.empty();
  return unread.empty() ? first : unread;
}

std::string frmMain::OffenceOf(const Field& field) const {
  if (Unread(field)) {
    return std::string(field.Caption.Current()) +
           " is no plain number yet and will be read when the box is left";
  }
  return Problem::OffenceOf(field, (this->*field.Box).Text);
}

void frmMain::InputToGlobal() {
  Problem::TakeInputs([this](const Field& field) -> const std::string& { return (this->*field.Box).Text; });
}

void frmMain::FillPipe() {
  if (CurrentChannelType().Is != Shape::Pipe) return;
  const double depth = ChannelState.Depth.Number();
  const double diameter = ChannelState.Diameter.Number();
  if (IsFull(depth, diameter)) ChannelState.Depth = ChannelState.Diameter;
}

bool frmMain::IsFull(double depth, double diameter) {
  return std::abs(depth - diameter) <= 1e-12 * std::abs(diameter);
}

void frmMain::ComputeResults() {
  InputToGlobal();
  SolveChannel();
  for (const Field& field : Fields()) {
    if (field.IsInput()) continue;
    (this->*field.Box).Text = ShownNumber(ChannelState.*field.Cell, field.Quantity, field.FixedDecimals);
  }
  EnablePrint(true);
}

void frmMain::ClearResults() {
  for (const Field& field : Fields()) {
    if (field.IsResult()) (this->*field.Box).Text = "";
  }
  EnablePrint(false);
}

void frmMain::EnablePrint(bool enabled) {
  mnuFilePrint.Enabled = enabled;
  mnuFilePrintPreview.Enabled = enabled;
  Toolbar1.Print.Enabled = enabled;
}

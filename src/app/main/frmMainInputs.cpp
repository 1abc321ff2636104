// The inputs as texts: edited, tidied, emptied, rewritten in other units, cut and pasted. See frmMain.h.
#include <algorithm>

#include "app/Declarations.h"
#include "app/FormStuff.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "app/main/Loading.h"
#include "app/main/frmMain.h"
#include "engine/NumberText.h"
#include "platform/Keys.h"
#include "platform/Services.h"

void frmMain::Input_Change() {
  Declarations::DataChanged = true;
  if (loading_) return;
  ForgetNews();
  typed_.Texts.clear();
  CheckInputs();
}

void frmMain::Input_Validate() {
  FormatInputs();
  ReadUnits();
}

bool frmMain::Input_KeyDown(const Field& field, int keyCode) {
  if (keyCode == Keys::Enter || keyCode == Keys::KeypadEnter) ReadUnits();
  if (keyCode != Keys::Up && keyCode != Keys::Down) return false;
  TextBox& box = this->*field.Box;
  const auto nudged = TypedUnits::Nudged(box.Text.Get(), field.Typed, keyCode == Keys::Up ? 1 : -1);
  if (!nudged) return false;
  const auto allowed = [&](const std::string& text) {
    return field.IsElevation() || FormStuff::Within(LeadingNumber(text), field.Bounds);
  };
  if (!allowed(*nudged) && allowed(box.Text)) return true;
  box.Rewrite(*nudged);
  return true;
}

std::optional<TypedUnits::Amount> frmMain::Unread(const Field& field) const {
  const std::string& typed = (this->*field.Box).Text;
  if (!CurrentChannelType().AsksFor(field) || IsNumeric(typed)) return std::nullopt;
  return TypedUnits::Read(typed, field.Typed);
}

bool frmMain::ReadUnits() {
  std::string read;
  for (const Field& field : Fields()) {
    const auto amount = Unread(field);
    if (!amount) continue;
    TextBox& box = this->*field.Box;
    const std::string typed = box.Text;
    const std::string unit = UnitLabel(ChannelState.UnitsEorM, field.Quantity);
    box.Rewrite(TypedUnits::SevenDigits(amount->Value / UnitFactor(ChannelState.UnitsEorM, field.Quantity)));
    read += (read.empty() ? "Read " : ", ") + typed;
    if (*amount->Which != '\0') read += " (" + std::string(amount->Which) + ")";
    read += " as " + box.Text.Get() + (unit.empty() ? field.Suffix : " " + unit);
  }
  if (read.empty()) return false;
  status_.Set(StatusLine::UnitRead, read);
  ShowStatus();
  return true;
}

bool frmMain::ReadFor(const Control& command) {
  return !ReadUnits() || command.Enabled;
}

void frmMain::FormatInputs() {
  const auto typed = typed_;
  for (const Field& field : Fields()) {
    TextBox& box = this->*field.Box;
    if (field.IsInput()) box.Text = FormStuff::AddLeadingZero(box);
  }
  typed_ = typed;  // a tidied text is no other input
}

void frmMain::FocusInput(const FocusControl* from) {
  const auto fields = Fields();
  const auto at =
      std::ranges::find_if(fields, [&](const Field& field) { return &(this->*field.Box) == from; });
  const bool locked = at != fields.end() && at->Result != ResultWhen::Always && at->IsResult();
  if (from != nullptr && from->Visible && from->Enabled && !locked) return;
  const auto takesTyping = [this](const Field& field) {
    const TextBox& box = this->*field.Box;
    return field.IsInput() && box.Visible && box.Enabled;
  };
  auto next = std::find_if(at, fields.end(), takesTyping);
  if (next == fields.end()) next = std::ranges::find_if(fields, takesTyping);
  if (next != fields.end()) MoveFocus(this->*next->Box);
}

void frmMain::WriteHiddenZeros() {
  const Loading loading(loading_);
  for (const Field& field : Fields()) {
    if (CurrentChannelType().UseOf(field) == Use::Zero) (this->*field.Box).Text = "0";
  }
}

void frmMain::ResetForm() {
  ChangeFile();
  Declarations::FileTitle = Declarations::FilePath = Declarations::Untitled;
  ForgetNews();
  ShowTitle();
  typed_.Texts.clear();
  {
    const Loading loading(loading_);
    tbProjName.Text = "";
    for (const Field& field : Fields()) {
      if (field.Result != ResultWhen::Always && !field.KeptByNew) (this->*field.Box).Text = "";
    }
    EmptySection();
    WriteHiddenZeros();
  }
  ForgetEdits();
  Declarations::DataChanged = false;
  CheckInputs();
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
  if (box != nullptr && !box->Locked) box->Paste(TheServices().clipboard.Text());
}

void frmMain::mnuEditDelete_Click() {
  auto* const box = dynamic_cast<TextBox*>(ActiveControl());
  if (box != nullptr && !box->Locked) box->ReplaceSelection("");
}

void frmMain::mnuEditSelectAll_Click() {
  if (auto* const box = dynamic_cast<TextBox*>(ActiveControl())) box->SelectAll();
}

const Field* frmMain::FieldInHand() const {
  const auto fields = Fields();
  const auto at = std::ranges::find_if(
      fields, [this](const Field& field) { return &(this->*field.Box) == ActiveControl(); });
  return at == fields.end() || (this->*at->Box).Text.Get().empty() ? nullptr : &*at;
}

void frmMain::mnuEditCopyWithUnit_Click() {
  const Field* const field = FieldInHand();
  if (field == nullptr) return;
  const std::string unit = UnitLabel(ChannelState.UnitsEorM, field->Quantity);
  TheServices().clipboard.SetText((this->*field->Box).Text.Get() +
                                  (unit.empty() ? field->Suffix : " " + WithRaisedExponents(unit)));
}

void frmMain::mnuEditCopyFull_Click() {
  const Field* const field = FieldInHand();
  if (field == nullptr) return;
  const EngineValue& value = ChannelState.*field->Cell;
  // An input is copied as it was typed, and so is a result that is a word.
  TheServices().clipboard.SetText(
      field->IsResult() && value.IsDouble()
          ? PlainNumberInLocale(value.Number() / UnitFactor(ChannelState.UnitsEorM, field->Quantity))
          : (this->*field->Box).Text.Get());
}

void frmMain::mnuEditCopyResults_Click() {
  if (!ReadFor(mnuEditCopyResults)) return;
  windows_.CopyResults();
  Declarations::Done = "Copied the results";
  ShowStatus();
}

// See frmFind.h.
#include "app/main/frmFind.h"

#include "app/FormStuff.h"
#include "app/Units.h"
#include "app/main/Problem.h"
#include "app/main/Reasons.h"
#include "engine/ChannelState.h"

namespace {

/// A quantity that is given here, whatever the mode of the main window.
struct Given {
  TextBox frmMain::*InMain;
  Label frmFind::*Name;
  TextBox frmFind::*Box;
  Label frmFind::*Unit;
};

constexpr Given Both[] = {
    {&frmMain::tbFlow, &frmFind::lblFlow, &frmFind::tbFlow, &frmFind::lblFlowUnits},
    {&frmMain::tbDepth, &frmFind::lblDepth, &frmFind::tbDepth, &frmFind::lblDepthUnits}};

std::string UnitOf(const Field& field) {
  return UnitLabel(ChannelState.UnitsEorM, field.Quantity) + field.Suffix;
}

}  // namespace

frmFind::frmFind(frmMain& main) : Form("frmFind"), main_(main) {
  Caption = "Find Input";
  lblFind.Caption = "Find";
  cmdOK.Caption = "OK";
  cmdOK.Enabled = false;
  cmdCancel.Caption = "Cancel";
  tbFound.Locked = true;
  tbFound.Bold = true;
  tbFound.BackColor = TextBox::LightYellow;
  cbxFind.Click = [this] { Find(); };
  for (const Given& each : Both) {
    TextBox& box = this->*each.Box;
    box.Change = [this] { Find(); };
    box.GotFocus = [&box] { FormStuff::SelectAllText(box); };
    box.Validate = [&box] { box.Text = FormStuff::AddLeadingZero(box); };
  }
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmFind::Form_Load() {
  findable_ = FindableInputs();
  for (const Given& each : Both) {
    const Field& field = FieldOf(each.InMain);
    (this->*each.Name).Caption = field.Caption.Current();
    (this->*each.Unit).Caption = UnitOf(field);
    (this->*each.Box).Text = (main_.*each.InMain).Text.Get();
  }
  std::vector<std::string> names;
  for (const Findable& each : findable_) names.push_back(each.Name);
  cbxFind.Items = names;
  if (!names.empty()) cbxFind.ListIndex = 0;
}

const Findable& frmFind::Wanted() const {
  return findable_[static_cast<std::size_t>(cbxFind.ListIndex)];
}

void frmFind::Find() {
  if (cbxFind.ListIndex < 0) return;  // the form is still being filled
  const auto typed = [this](const Field& field) -> const std::string& {
    for (const Given& each : Both) {
      if (field.Box == each.InMain) return (this->*each.Box).Text;
    }
    return (main_.*field.Box).Text;
  };
  const FoundInput found = FindInput(Wanted(), typed);
  lblFound.Caption = Wanted().Name;
  lblFoundUnits.Caption = UnitOf(*Wanted().Inputs.front());
  tbFound.Text = found.Text;
  tbFound.ToolTip = Sentence(found.WhyNone);
  for (const Given& each : Both) {
    const bool amiss = found.Amiss == &FieldOf(each.InMain);
    FormStuff::Mark(this->*each.Box, amiss ? found.WhyNone : "");
  }
  lblStatus.Caption = Sentence(found.WhyNone);
  cmdOK.Enabled = !found.Text.empty();
}

void frmFind::cmdOK_Click() {
  for (const Given& each : Both) {
    if (FieldOf(each.InMain).IsInput()) (main_.*each.InMain).Text = (this->*each.Box).Text.Get();
  }
  for (const Field* const input : Wanted().Inputs) (main_.*input->Box).Text = tbFound.Text.Get();
  Unload();
}

void frmFind::cmdCancel_Click() {
  Unload();
}

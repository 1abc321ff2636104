// See RangeSettings.h.
#include "rating/RangeSettings.h"

#include "app/main/Fields.h"
#include "engine/ChannelState.h"

RangeSettings::RangeSettings(std::string name) : Form(std::move(name)), RangeControls(this) {
  Frame1.Caption = "Range";
  cmdOK.Caption = "OK";
  cmdCancel.Caption = "Cancel";
  cbxVary.Click = [this] { ProposeRange(); };
  tbMin.Change = tbMax.Change = [this] { EnableOK(); };
  cmdLastUsed.Click = [this] { cmdLastUsed_Click(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void RangeSettings::Form_Load() {
  before_ = RatingRange;
  lblSolveFor.Caption = ChannelState.SolveForFlow ? "Solve for Flow" : "Solve for Depth";
  ShowRangeInForce();
  OfferLastUsed();
  EnableOK();
}

void RangeSettings::ProposeRange() {
  cbxVary_Click();
  ForgetEdits();
}

void RangeSettings::cbxVary_Click() {
  RatingRange.VaryCode = Varied()->PageQuantity;
  Propose();
  OfferLastUsed();
  EnableOK();
}

const UsedRange* RangeSettings::UsedForInput() const {
  const auto& ranges = LastUsed().Ranges;
  const auto used = Varied() == nullptr ? ranges.end() : ranges.find(Varied()->PageQuantity);
  return used == ranges.end() ? nullptr : &used->second;
}

void RangeSettings::OfferLastUsed() {
  const UsedRange* const used = UsedForInput();
  cmdLastUsed.Visible = used != nullptr;
  if (used != nullptr)
    cmdLastUsed.Caption = "Last used: " + ShownWhole(used->First) + " to " + ShownWhole(used->Last);
}

void RangeSettings::cmdLastUsed_Click() {
  const UsedRange& used = *UsedForInput();
  tbMin.Text = ShownWhole(used.First);
  tbMax.Text = ShownWhole(used.Last);
}

void RangeSettings::EnableOK() {
  const bool range = MarkEnds();
  const bool step = MarkStep();
  cmdOK.Enabled = range && step;
  lblRange.Caption = cmdOK.Enabled ? Extent() : FirstOffence();
}

void RangeSettings::cmdOK_Click() {
  RatingRange.RatingCancelled = false;
  RatingRange.RangeMin = Internal(tbMin);
  RatingRange.RangeMax = Internal(tbMax);
  if (Varied() != nullptr) {
    LastUsed().Ranges[Varied()->PageQuantity] = {RatingRange.RangeMin.Number(), RatingRange.RangeMax.Number(),
                                                 TypedStep()};
  }
  accepted_ = true;
  Unload();
}

void RangeSettings::cmdCancel_Click() {
  RatingRange.RatingCancelled = true;
  Unload();
}

bool RangeSettings::Form_QueryUnload() {
  if (!accepted_) RatingRange.GoBackTo(before_);
  return true;
}

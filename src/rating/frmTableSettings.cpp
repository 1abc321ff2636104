// See frmTableSettings.h.
#include "rating/frmTableSettings.h"

#include "app/Declarations.h"
#include "app/FormStuff.h"
#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "engine/NumberText.h"
#include "rating/RatingSeries.h"

namespace {

constexpr int MostSteps = 10000;

double NumberIn(const TextBox& box) {
  return LeadingNumber(box.Text.Get());
}

}  // namespace

frmTableSettings::frmTableSettings() : RangeSettings("frmTableSettings") {
  Caption = "Rating Table Settings";
  Label3.Caption = "Step";
  Label4.Caption = "Vary";
  RefuseLongTexts(tbIncrement);
  tbIncrement.Change = [this] { EnableOK(); };
  checked_.push_back(&tbIncrement);
}

void frmTableSettings::Form_Load() {
  RangeSettings::Form_Load();
  if (cbxVary.ListIndex >= 0) tbIncrement.Text = Shown(RatingRange.RangeStep);
}

void frmTableSettings::cbxVary_Click() {
  RangeSettings::cbxVary_Click();
  ProposeStep();
}

void frmTableSettings::cmdLastUsed_Click() {
  const std::optional<double> step = UsedForInput()->Step;
  RangeSettings::cmdLastUsed_Click();
  if (step) {
    tbIncrement.Text = ShownWhole(*step);
  } else {
    ProposeStep();
  }
}

void frmTableSettings::ProposeStep() {
  const double step =
      (NumberIn(tbMax) - NumberIn(tbMin)) / ProposedTableSteps;  // already in the unit on display
  tbIncrement.Text = ShownNumber(step, Units::Dimensionless, HasFixedDecimals());
}

bool frmTableSettings::MarkStep() {
  return FormStuff::Mark(tbIncrement, StepOffence());
}

std::string frmTableSettings::StepOffence() const {
  if (!IsNumeric(tbIncrement.Text.Get())) return FormStuff::WhyNoNumber("Step", tbIncrement.Text.Get());
  const double step = NumberIn(tbIncrement);
  if (step <= 0) return "Step must be greater than 0";
  // Also when the range is too wide for a number of steps.
  const bool tooMany = !((NumberIn(tbMax) - NumberIn(tbMin)) / step <= MostSteps);
  return tooMany ? "Step must be greater: the range has more than 10000 steps" : "";
}

std::string frmTableSettings::Extent() const {
  RatingRangeRecord range = TypedRange();
  range.RangeStep = Internal(tbIncrement);
  const RatingPlan plan = PlanRatingSeries(range, LastValue::Snapped);
  const std::string rows = Counted(plan.Points, "row");
  return plan.ReachesEnd ? rows : rows + "; " + tbMax.Text.Get() + " is not reached";
}

void frmTableSettings::cmdOK_Click() {
  RatingRange.RangeStep = Internal(tbIncrement);
  RangeSettings::cmdOK_Click();
}

// See RatingSeries.h.
#include "rating/RatingSeries.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "engine/EngineFault.h"
#include "engine/ManningIrreg.h"
#include "engine/SolveChannel.h"
#include "platform/Services.h"

namespace {

constexpr double SnapDistance = 1e-10;  // internal units

/// Restores the inputs however the series ends.
class RestoredInputs {
 public:
  explicit RestoredInputs(const frmMain& main) : main_(main) {}
  // The unit table, which alone could throw, has every quantity that is asked for.
  ~RestoredInputs() { RestoreInputsFromMain(main_); }  // NOLINT(bugprone-exception-escape)
  RestoredInputs(const RestoredInputs&) = delete;
  RestoredInputs& operator=(const RestoredInputs&) = delete;

 private:
  const frmMain& main_;
};

/// Solves the point in the record and stores its row; else the reason why it has none.
std::optional<Reason> TryPoint(int varyCode, const std::function<void()>& store) {
  try {
    frmMain::FillPipe();
    if (!IsRatingPointValid(varyCode)) return WhyNoResult({});
    SolveChannel();
    if (!ChannelState.Depth.IsNumeric() || !ChannelState.Flow.IsNumeric()) return WhyNoResult({});
    store();
    return std::nullopt;
  } catch (const EngineFault& fault) {
    return WhyNoResult(fault.what());
  }
}

/// Visits the values of the range in order until `visit` returns false or a step no longer moves them.
template <class Visit>
void ForEachValue(const RatingRangeRecord& range, LastValue lastValue, Visit visit) {
  const double last = range.RangeMax.Number();
  const double step = range.RangeStep.Number();
  bool maySnap = lastValue == LastValue::Snapped;
  for (double x = range.RangeMin.Number(); x <= last;) {
    if (!visit(x) || !(x + step > x)) return;
    x += step;
    if (maySnap && std::abs(x - last) < SnapDistance) {
      x = last;
      maySnap = false;
    }
  }
}

/// True for the first value of the range proposed for this input, rounded as the dialog shows it.
bool IsWhereRangesBegin(const Field& input, double x) {
  const double first = LowestVaried(input);
  return x == first ||
         (first != 0 && ShownNumber(x, input.Quantity, true) == ShownNumber(first, input.Quantity, true));
}

/// How far a long series has come, on the screen. A short one, the graph's among them, shows nothing.
class SeriesProgress {
 public:
  explicit SeriesProgress(double points) : total_(static_cast<int>(std::clamp(points, 1.0, 1e6))) {}
  ~SeriesProgress() {
    if (shown_) Report(total_);  // NOLINT(bugprone-exception-escape): ends a display
  }
  SeriesProgress(const SeriesProgress&) = delete;
  SeriesProgress& operator=(const SeriesProgress&) = delete;

  /// False when the user cancels.
  bool GoesOn(int points) {
    if (points % PointsPerReport != 0 || points >= total_) return true;
    shown_ = Report(points);
    return shown_;
  }

 private:
  static constexpr int PointsPerReport = 500;

  bool Report(int points) const {
    return TheServices().progress.Show("Computing the rating curve", points, total_);
  }

  int total_;
  bool shown_ = false;
};

}  // namespace

const Field* FindVariedInput(int varyCode) {
  for (const Field& field : Fields()) {
    if (field.CanVary() && field.PageQuantity == varyCode) return &field;
  }
  return nullptr;
}

double LowestVaried(const Field& field) {
  if (!field.IsElevation()) return 0;
  return ManningIrreg::IrregLowPoint(ChannelState.IrregEnginePoints, ChannelState.IrregPointCount);
}

void RatingGaps::Add(const Reason& why, int points) {
  const auto known = std::ranges::find(
      gaps_, why.OfMany, [](const Gap& gap) -> auto& { return gap.Why.OfMany; });
  if (known == gaps_.end()) {
    gaps_.push_back({why, points});
    return;
  }
  known->Points += points;
  if (known->Why.Text != why.Text) known->Why.Text = why.OfMany;
}

void RatingGaps::Add(const RatingGaps& others) {
  for (const Gap& gap : others.gaps_) Add(gap.Why, gap.Points);
}

RatingGaps RatingGaps::OfMany() const {
  RatingGaps many = *this;
  for (Gap& gap : many.gaps_) gap.Why.Text = gap.Why.OfMany;
  return many;
}

std::string RatingGaps::Text(int points) const {
  std::string text;
  for (const Gap& gap : gaps_) {
    if (!text.empty()) text += "; ";
    text += std::to_string(gap.Points) + " of " + std::to_string(points) +
            (points == 1 ? " point: " : " points: ") + gap.Why.Text;
  }
  return text;
}

RatingOutcome RunRatingSeries(const frmMain& main, const RatingRangeRecord& range, LastValue lastValue,
                              const std::function<void(int row)>& store) {
  const RestoredInputs restored(main);
  SeriesProgress progress((range.RangeMax.Number() - range.RangeMin.Number()) / range.RangeStep.Number() + 1);
  return StepRatingSeries(range, lastValue, store, [&](int points) { return progress.GoesOn(points); });
}

RatingOutcome StepRatingSeries(const RatingRangeRecord& range, LastValue lastValue,
                               const std::function<void(int row)>& store,
                               const std::function<bool(int points)>& goesOn) {
  const Field* const input = FindVariedInput(range.VaryCode);
  const double first = range.RangeMin.Number();
  RatingOutcome outcome;
  std::optional<Reason> atTheBeginning;
  int rows = 0;
  ForEachValue(range, lastValue, [&](double x) {
    if (input != nullptr) ChannelState.*input->Cell = x;
    const std::optional<Reason> gap = TryPoint(range.VaryCode, [&] {
      store(rows + 1);
      ++rows;
    });
    ++outcome.Points;
    if (gap && input != nullptr && x == first && IsWhereRangesBegin(*input, x)) {
      atTheBeginning = gap;
    } else if (gap) {
      outcome.Gaps.Add(*gap);
    }
    outcome.Cancelled = !goesOn(outcome.Points);
    return !outcome.Cancelled;
  });
  if (atTheBeginning && outcome.Points > 1) {
    --outcome.Points;
  } else if (atTheBeginning) {
    outcome.Gaps.Add(*atTheBeginning);
  }
  return outcome;
}

void ProposeRange(int steps) {
  const Field& given = FieldOf(ChannelState.SolveForFlow ? &frmMain::tbDepth : &frmMain::tbFlow);
  RatingRange.VaryCode = given.PageQuantity;
  RatingRange.RangeMin = LowestVaried(given);
  RatingRange.RangeMax = ChannelState.*given.Cell;
  RatingRange.RangeStep = (RatingRange.RangeMax.Number() - RatingRange.RangeMin.Number()) / steps;
}

RatingPlan PlanRatingSeries(const RatingRangeRecord& range, LastValue lastValue) {
  const ChannelRecord before = ChannelState;
  const Field* const input = FindVariedInput(range.VaryCode);
  RatingPlan plan;
  ForEachValue(range, lastValue, [&](double x) {
    if (input != nullptr) ChannelState.*input->Cell = x;
    frmMain::FillPipe();
    if (IsRatingPointValid(range.VaryCode)) ++plan.Points;
    plan.ReachesEnd = x == range.RangeMax.Number();
    return true;
  });
  ChannelState = before;
  return plan;
}

std::string Counted(int number, const std::string& what) {
  return std::to_string(number) + ' ' + what + (number == 1 ? "" : "s");
}

bool IsRatingPointValid(int varyCode) {
  const ChannelRecord& record = ChannelState;
  const ChannelType& type = CurrentChannelType();
  const Field* const varied = FindVariedInput(varyCode);
  if (varied == nullptr || !type.Has(*varied)) return true;
  const double x = (record.*varied->Cell).Number();
  if (varied->IsElevation()) return x > LowestVaried(*varied);
  const bool aboveCrown =
      type.Is == Shape::Pipe && record.SolveForFlow && record.Depth.Number() > record.Diameter.Number();
  return FormStuff::Within(x, varied->RatedBounds) && !aboveCrown;
}

void RestoreInputsFromMain(const frmMain& main) {
  for (const Field& field : Fields()) {
    const EngineValue typed((main.*field.Box).Text.Get());
    if (!field.CanVary() || !typed.IsNumeric()) continue;
    ChannelState.*field.Cell = typed.Number() * UnitFactor(ChannelState.UnitsEorM, field.Quantity);
  }
  frmMain::FillPipe();
}

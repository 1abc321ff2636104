// See RatingSeries.h.
#include "rating/RatingSeries.h"

#include <cmath>

#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "engine/EngineFault.h"
#include "engine/ManningIrreg.h"
#include "engine/SolveChannel.h"

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

bool SolvePoint(int varyCode) {
  frmMain::FillPipe();
  if (!IsRatingPointValid(varyCode)) return false;
  SolveChannel();
  return ChannelState.Depth.IsNumeric() && ChannelState.Flow.IsNumeric();
}

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

void RunRatingSeries(const frmMain& main, const RatingRangeRecord& range, LastValue lastValue,
                     const std::function<void(int row)>& store) {
  const RestoredInputs restored(main);
  const Field* const input = FindVariedInput(range.VaryCode);
  const double last = range.RangeMax.Number();
  const double step = range.RangeStep.Number();
  bool maySnap = lastValue == LastValue::Snapped;
  int rows = 0;
  for (double x = range.RangeMin.Number(); x <= last;) {
    if (input != nullptr) ChannelState.*input->Cell = x;
    try {
      if (SolvePoint(range.VaryCode)) {
        store(rows + 1);
        ++rows;
      }
    } catch (const EngineFault&) {
      // No row: the curve goes on with its next point.
    }
    if (!(x + step > x)) break;
    x += step;
    if (maySnap && std::abs(x - last) < SnapDistance) {
      x = last;
      maySnap = false;
    }
  }
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

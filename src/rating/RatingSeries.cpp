// See RatingSeries.h.
#include "rating/RatingSeries.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <iterator>

#include "app/Units.h"
#include "engine/EngineFault.h"
#include "engine/ManningIrreg.h"
#include "engine/SolveChannel.h"

namespace {

constexpr VariedInput VariedInputs[] = {
    {"Depth", &ChannelRecord::Depth, Units::Length, 2},
    {"Flow", &ChannelRecord::Flow, Units::Flow, 1},
    {"Slope", &ChannelRecord::Slope, Units::Slope, 3},
    {"Diameter", &ChannelRecord::Diameter, Units::Diameter, 5},
    {"Base Width", &ChannelRecord::BaseWidth, Units::BaseWidth, 5},
    {"Mannings n", &ChannelRecord::ManningN, Units::Dimensionless, 4},
};

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

const VariedInput* FindVariedInput(int varyCode) {
  const auto* const found =
      std::ranges::find_if(VariedInputs, [=](const VariedInput& each) { return each.VaryCode == varyCode; });
  return found == std::end(VariedInputs) ? nullptr : found;
}

void RunRatingSeries(const frmMain& main, const RatingRangeRecord& range, LastValue lastValue,
                     const std::function<void(int row)>& store) {
  const RestoredInputs restored(main);
  const VariedInput* const input = FindVariedInput(range.VaryCode);
  const double last = range.RangeMax.Number();
  const double step = range.RangeStep.Number();
  bool maySnap = lastValue == LastValue::Snapped;
  int rows = 0;
  for (double x = range.RangeMin.Number(); x <= last;) {
    if (input != nullptr) ChannelState.*input->Field = x;
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
  const bool irregular = record.ChannelType == ChannelTypes::Irregular;
  switch (varyCode) {
    case Units::Length: {
      const double depth = record.Depth.Number();
      if (irregular) {
        return depth > ManningIrreg::IrregLowPoint(record.IrregEnginePoints, record.IrregPointCount);
      }
      const bool circular = record.ChannelType == ChannelTypes::Circular;
      return depth > 0 && !(circular && depth > record.Diameter.Number());
    }
    case Units::Flow:
      return record.Flow.Number() > 0;
    case Units::Slope:
      return record.Slope.Number() > 0 && record.Slope.Number() <= 1;
    case Units::Diameter: {
      const double diameter = record.Diameter.Number();
      return diameter > 0 && !(record.SolveForFlow && record.Depth.Number() > diameter);
    }
    case Units::BaseWidth:
      return record.BaseWidth.Number() >= 0;
    case Units::Dimensionless: {
      const double n = record.ManningN.Number();
      return irregular || (n > 0 && n <= 1);
    }
    default:
      return true;
  }
}

void RestoreInputsFromMain(const frmMain& main) {
  struct Input {
    const TextBox& Box;
    EngineValue& Cell;
    int Quantity;
  };
  ChannelRecord& record = ChannelState;
  for (const Input& each :
       std::initializer_list<Input>{{main.tbDepth, record.Depth, Units::Length},
                                    {main.tbFlow, record.Flow, Units::Flow},
                                    {main.tbMann, record.ManningN, Units::Dimensionless},
                                    {main.tbSlope, record.Slope, Units::Slope},
                                    {main.tbDiameter, record.Diameter, Units::Diameter},
                                    {main.tbBaseWidth, record.BaseWidth, Units::BaseWidth}}) {
    const EngineValue typed(each.Box.Text.Get());
    if (typed.IsNumeric()) each.Cell = typed.Number() * UnitFactor(record.UnitsEorM, each.Quantity);
  }
  frmMain::FillPipe();
}

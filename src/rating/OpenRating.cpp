// See OpenRating.h.
#include "rating/OpenRating.h"

#include "app/Declarations.h"
#include "app/Units.h"
#include "engine/ChannelState.h"
#include "engine/ManningIrreg.h"
#include "platform/Services.h"
#include "rating/frmGraph.h"
#include "rating/frmGraphSettings.h"
#include "rating/frmTable.h"
#include "rating/frmTableSettings.h"

namespace {

/// From nothing up to the depth or flow typed in.
void SetDefaultRange(int steps) {
  const ChannelRecord& record = ChannelState;
  RatingRange.VaryCode = record.SolveForFlow ? Units::Length : Units::Flow;
  const bool elevation = record.SolveForFlow && record.ChannelType == ChannelTypes::Irregular;
  RatingRange.RangeMin =
      elevation ? ManningIrreg::IrregLowPoint(record.IrregEnginePoints, record.IrregPointCount) : 0;
  RatingRange.RangeMax = record.SolveForFlow ? record.Depth : record.Flow;
  RatingRange.RangeStep = (RatingRange.RangeMax.Number() - RatingRange.RangeMin.Number()) / steps;
}

template <class Settings, class Window>
void Open(const frmMain& main) {
  Settings settings;
  TheServices().windows.ShowModal(settings);
  if (RatingRange.RatingCancelled) return;
  Window window(main);
  TheServices().windows.ShowModal(window);
}

}  // namespace

void OpenRatingGraph(const frmMain& main) {
  SetDefaultRange(100);
  RatingRange.GraphYColumn = ChannelState.SolveForFlow ? 1 : 2;
  Open<frmGraphSettings, frmGraph>(main);
}

void OpenRatingTable(const frmMain& main) {
  SetDefaultRange(20);
  Open<frmTableSettings, frmTable>(main);
}

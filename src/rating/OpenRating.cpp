// See OpenRating.h.
#include "rating/OpenRating.h"

#include "app/Declarations.h"
#include "app/main/Fields.h"
#include "platform/Services.h"
#include "rating/RatingSeries.h"
#include "rating/frmGraph.h"
#include "rating/frmGraphSettings.h"
#include "rating/frmTable.h"
#include "rating/frmTableSettings.h"

namespace {

/// From nothing up to the depth or flow typed in.
void SetDefaultRange(int steps) {
  const Field& given = FieldOf(ChannelState.SolveForFlow ? &frmMain::tbDepth : &frmMain::tbFlow);
  RatingRange.VaryCode = given.PageQuantity;
  RatingRange.RangeMin = LowestVaried(given);
  RatingRange.RangeMax = ChannelState.*given.Cell;
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
  const auto solved = ChannelState.SolveForFlow ? &frmMain::tbFlow : &frmMain::tbDepth;
  RatingRange.GraphYColumn = FieldOf(solved).RatingColumn;
  Open<frmGraphSettings, frmGraph>(main);
}

void OpenRatingTable(const frmMain& main) {
  SetDefaultRange(20);
  Open<frmTableSettings, frmTable>(main);
}

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
  ProposeRange(100);
  const auto solved = ChannelState.SolveForFlow ? &frmMain::tbFlow : &frmMain::tbDepth;
  RatingRange.GraphYColumn = FieldOf(solved).RatingColumn;
  Open<frmGraphSettings, frmGraph>(main);
}

void OpenRatingTable(const frmMain& main) {
  ProposeRange(ProposedTableSteps);
  Open<frmTableSettings, frmTable>(main);
}

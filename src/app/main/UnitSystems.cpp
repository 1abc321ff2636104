// See UnitSystems.h.
#include "app/main/UnitSystems.h"

#include "app/Units.h"
#include "app/main/frmMain.h"

namespace {

constexpr UnitSystem Rows[] = {
    {Units::English, &frmMain::mnuOptionsUnitsEnglish, "English Units", "e"},
    {Units::Metric, &frmMain::mnuOptionsUnitsMetric, "Metric Units", "m"},
};

}  // namespace

std::span<const UnitSystem> AllUnitSystems() {
  return Rows;
}

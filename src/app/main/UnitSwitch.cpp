// See UnitSwitch.h.
#include "app/main/UnitSwitch.h"

#include <algorithm>
#include <cmath>

#include "app/NumberDisplay.h"
#include "app/main/frmMain.h"

namespace {

constexpr int MostDecimals = 20;  // more than any length needs that is neither 0 nor an atom's

/// Gives the number the fewest decimals, from those that it has, with which `holds`; false when none do.
template <class Holds>
bool Refine(Rewritten& number, Holds holds) {
  const int before = number.Decimals;
  for (; number.Decimals <= MostDecimals; ++number.Decimals) {
    if (holds()) return true;
  }
  number.Decimals = before;
  return false;
}

}  // namespace

bool Rewritten::Converts() const {
  return Typed.IsNumeric() && std::isfinite(Exact());
}

EngineValue Rewritten::Text() const {
  constexpr int digitsOfTheSmallest = 3;
  if (!Converts()) return Typed;
  EngineValue text = FixedFormat(Typed, Factor, Decimals);
  const bool lost = text.Number() == 0 && Typed.Number() != 0;
  return lost ? SigFormat(Typed, Factor, digitsOfTheSmallest) : text;
}

void UnitSwitch::KeepAscending(std::vector<Rewritten>& stations) {
  std::vector<int> least;
  least.reserve(stations.size());
  for (const Rewritten& station : stations) least.push_back(station.Decimals);
  for (std::size_t i = 1; i < stations.size();) {
    Rewritten& before = stations[i - 1];
    Rewritten& station = stations[i];
    station.Decimals = least[i];
    const bool ascends = station.Typed.Number() > before.Typed.Number();
    if (!ascends || Refine(station, [&] { return station.Number() > before.Number(); }) ||
        before.Decimals >= MostDecimals) {
      ++i;
    } else {
      least[i - 1] = ++before.Decimals;
      i = std::max<std::size_t>(i - 1, 1);
    }
  }
}

void UnitSwitch::KeepBelowCrown(Rewritten& depth, Rewritten& diameter, const PipeUnits& units) {
  if (!depth.Converts() || !diameter.Converts()) return;
  const double typedDepth = depth.Typed.Number() * units.DepthBefore;
  const double typedDiameter = diameter.Typed.Number() * units.DiameterBefore;
  const auto feet = [&] { return depth.Number() * units.DepthNow; };
  const auto crown = [&] { return diameter.Number() * units.DiameterNow; };
  if (frmMain::IsFull(typedDepth, typedDiameter)) {
    depth = {diameter.Text(), units.DiameterNow / units.DepthNow, depth.Decimals};
    Refine(depth, [&] { return frmMain::IsFull(feet(), crown()); });
  } else if (typedDepth < typedDiameter) {
    const auto below = [&] { return feet() <= crown() || frmMain::IsFull(feet(), crown()); };
    while (!Refine(depth, below) && diameter.Decimals < MostDecimals) ++diameter.Decimals;
  }
}

void UnitSwitch::KeepBetween(Rewritten& level, std::vector<Rewritten>& elevations) {
  if (!level.Converts() || elevations.empty()) return;
  const auto [lowest, highest] = std::ranges::minmax(
      elevations, {}, [](const Rewritten& elevation) { return elevation.Typed.Number(); });
  const double low = lowest.Typed.Number();
  const double high = highest.Typed.Number();
  if (!(low < level.Typed.Number() && level.Typed.Number() < high)) return;
  const auto refineAll = [&](double typed) {
    for (Rewritten& elevation : elevations) {
      if (elevation.Typed.Number() == typed) ++elevation.Decimals;
    }
  };
  for (int tries = 0; tries < MostDecimals; ++tries) {
    const auto [lowestNow, highestNow] = std::ranges::minmax(elevations, {}, &Rewritten::Number);
    const double bottom = lowestNow.Number();
    const double top = highestNow.Number();
    if (Refine(level, [&] { return bottom < level.Number() && level.Number() < top; })) return;
    if (!(bottom < level.Exact())) refineAll(low);
    if (!(level.Exact() < top)) refineAll(high);
  }
}

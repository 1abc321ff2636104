// Typed numbers in the other unit system: rounded to as few decimals as possible, but so that a
// channel stays what it was.
#pragma once

#include <vector>

#include "engine/EngineValue.h"

/// A typed number as it is rewritten. What is not a number, or too large for one in the new unit, stays as it
/// is; a number that the decimals would make 0 gets three significant digits.
struct Rewritten {
  EngineValue Typed;
  double Factor = 1;  ///< from the unit before to the one now in force
  int Decimals = 0;

  bool Converts() const;
  double Exact() const { return Factor * Typed.Number(); }
  EngineValue Text() const;
  double Number() const { return Text().Number(); }
};

namespace UnitSwitch {

/// A station above the one before it stays so. Each gets the fewest decimals with which it exceeds the one
/// written before it; one that was rounded up past the next gets more itself.
void KeepAscending(std::vector<Rewritten>& stations);

/// A full pipe stays full, and a depth that did not pass the crown does not pass it. Factors: to feet, in
/// each unit system.
struct PipeUnits {
  double DepthBefore, DepthNow, DiameterBefore, DiameterNow;
};
void KeepBelowCrown(Rewritten& depth, Rewritten& diameter, const PipeUnits& units);

/// A water level between the lowest and the highest of these elevations stays there.
void KeepBetween(Rewritten& level, std::vector<Rewritten>& elevations);

}  // namespace UnitSwitch

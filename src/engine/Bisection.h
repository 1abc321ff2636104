// The depth search of every channel type. Its answer is the last midpoint it tried, not the centre of the
// interval left over.
#pragma once

#include <cmath>

#include "engine/Constants.h"
#include "engine/EngineFault.h"

// Where a rising function of depth reaches the target, between lo and hi, all in feet; halves the interval
// until it is no wider than the tolerance. Far from zero the spacing of doubles exceeds the tolerance: the
// search then ends when its interval no longer shrinks. Faults when lo and hi leave no midpoint to try;
// faults of the function pass through.
template <typename Function>
double LastMidpoint(double lo, double hi, double target, Function function) {
  if (!(std::abs(hi - lo) > Constants::SearchTolerance))
    ThrowFault("the range of depths is too narrow to search");
  double y = 0;
  double width = hi - lo;
  double widthBefore = 0;
  do {
    y = (lo + hi) / 2;
    // The empty statements keep the arms jumps: the processor then starts on the next midpoint while this
    // one is still compared. Blended into selects they cost a quarter of the search.
    if (function(y) < target) {
      asm volatile("");
      lo = y;
    } else {
      asm volatile("");
      hi = y;
    }
    widthBefore = width;
    width = hi - lo;
  } while (std::abs(width) > Constants::SearchTolerance && width != widthBefore);
  return y;
}

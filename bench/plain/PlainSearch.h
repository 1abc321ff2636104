// The prescribed search: the last midpoint tried, each midpoint asking the function.
#pragma once

#include <cmath>

#include "engine/Constants.h"
#include "engine/EngineFault.h"

namespace PlainLoops {

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

}  // namespace PlainLoops

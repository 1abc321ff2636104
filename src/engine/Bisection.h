// The depth search of every channel type. Its answer is the last midpoint it tried, not the centre of the
// interval left over.
#pragma once

#include <cmath>
#include <utility>

#include "engine/Constants.h"
#include "engine/EngineFault.h"

// The last midpoint tried, and the interval that it halved; ft.
struct Halving {
  double y, lo, hi;
};

// Halves the interval from lo to hi (ft) until it is no wider than the tolerance, towards its upper end where
// below(y) holds and towards its lower end elsewhere. Far from zero the spacing of doubles exceeds the
// tolerance: the search then ends when its interval no longer shrinks. Faults when lo and hi leave no
// midpoint to try; faults of below pass through.
template <typename Below>
Halving Bisect(double lo, double hi, Below below) {
  double width = hi - lo;
  if (!(std::abs(width) > Constants::SearchTolerance))
    ThrowFault("the range of depths is too narrow to search");
  Halving last;
  double widthBefore = 0;
  do {
    last = {(lo + hi) / 2, lo, hi};
    // The empty statements keep the arms jumps: the processor then starts on the next midpoint while this
    // one is still compared. Blended into selects they cost a quarter of the search.
    if (below(last.y)) {
      asm volatile("");
      lo = last.y;
    } else {
      asm volatile("");
      hi = last.y;
    }
    widthBefore = std::exchange(width, hi - lo);
  } while (std::abs(width) > Constants::SearchTolerance && width != widthBefore);
  return last;
}

// The last midpoint on the way to where a rising function of depth reaches the target.
template <typename Function>
double LastMidpoint(double lo, double hi, double target, Function function) {
  return Bisect(lo, hi, [&](double y) { return function(y) < target; }).y;
}

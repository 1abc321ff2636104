// The problems whose rating curves the benchmarks run.
#pragma once

#include "app/main/frmMain.h"

namespace RatingProblems {

/// A main window with nothing typed in: it leaves the record alone. Made at the first call, which empties the
/// record.
const frmMain& EmptyWindow();

// Each sets the problem up, to be solved for the depth of a flow.

void Trapezoid();
void Circle();
/// A valley of 100 points, uneven at the bottom, with a channel between flood plains.
void Valley();

/// So many flows up to the last one.
void SetRange(int points, double lastFlow);

}  // namespace RatingProblems

// Uniform and critical flow in a surveyed section: a polyline of stations and elevations whose roughness may
// change along it.
//
// Notation: x station (ft), e elevation (ft), W water-surface elevation (ft), A flow area (ft^2), P wetted
// perimeter (ft), T top width (ft), Q flow (ft^3/s), V mean velocity (ft/s), n Manning's roughness
// coefficient, S slope (ft/ft), g 32.17405 ft/s^2. A point is submerged when its elevation is below W. The
// end stations bound the water but are no walls: they add nothing to the wetted perimeter.
#pragma once

#include "engine/ChannelState.h"
#include "engine/EngineValue.h"

namespace ManningIrreg {

// In all of these the points are rows 1 to count of the table: stations ascending, elevations, and an n where
// a new roughness begins.

// The lowest elevation (ft). Faults unless there are 1 to 101 points.
double IrregLowPoint(const PointTable& points, int count);

// Geometry of the water below the elevation W (ft), summed over all wet segments: area (ft^2), wetted
// perimeter (ft), top width (ft). They fault unless there are 2 to 101 points, and when a number is not
// finite.
double IrregArea(const PointTable& points, int count, double W);
double IrregWettedPerimeter(const PointTable& points, int count, double W);
double IrregTopWidth(const PointTable& points, int count, double W);

// Flow (ft^3/s) at the elevation W: the sum of Manning's flows of the subsections of one n each; their
// interfaces are no wetted perimeter. Faults as above, and when the first point has no n, a wet subsection's
// n is zero or S is negative.
double IrregFlow(const PointTable& points, int count, double W, double S);

// Froude number V / sqrt(g A / T) of the velocity V (ft/s), T (ft) > 0 and A (ft^2) > 0; faults outside.
double IrregFroude(double V, double T, double A);

// Critical water-surface elevation (ft) of the flow Q (ft^3/s), where A sqrt(A / T) = Q / sqrt(g), by
// bisection up to 999 ft above the lowest point; blank beyond 998 ft. Faults as the geometry, and where the
// search meets water without width.
EngineValue IrregCriticalElevation(const PointTable& points, int count, double Q);

// Solve the problem record for Flow from Depth, which holds the water-surface elevation. Faults (no water, a
// point table without n, a negative slope, a number out of range) leave the results before them assigned.
void IrregFlowFromDepth();

// Solve the problem record for Depth (the water-surface elevation) from Flow by bisection up to 999 ft above
// the lowest point; beyond 998 ft it is "Overflow" and the results are blank. Faults as above.
void IrregDepthFromFlow();

}  // namespace ManningIrreg

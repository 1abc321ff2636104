// Uniform and critical flow in channels of trapezoidal section; a rectangle has both side slopes 0, a
// triangle the base width 0.
//
// Notation: y depth (ft), b base width (ft), zL and zR left and right side slope (horizontal per vertical),
// A flow area (ft^2), P wetted perimeter (ft), T top width (ft), Q flow (ft^3/s), V mean velocity (ft/s),
// n Manning's roughness coefficient, S slope (ft/ft), g 32.17405 ft/s^2.
#pragma once

#include "engine/EngineValue.h"

namespace ManningTrap {

// Geometry of the trapezoid at the depth y >= 0, for b, zL, zR >= 0: area (ft^2), wetted perimeter (ft) and
// top width (ft). Each faults when its result is not finite.
double TrapArea(double y, double b, double zL, double zR);
double TrapWettedPerimeter(double y, double b, double zL, double zR);
double TrapTopWidth(double y, double b, double zL, double zR);

// Froude number V / sqrt(g A / T) of the velocity V (ft/s), T (ft) > 0 and A (ft^2) > 0; faults outside.
double TrapFroude(double V, double T, double A);

// Critical depth (ft) of the flow Q (ft^3/s), where A sqrt(A / T) = Q / sqrt(g) (section factor of critical
// flow), by bisection between 0 and 999 ft; false beyond 998 ft. Faults when the channel has no width.
EngineValue TrapCriticalDepth(double b, double zL, double zR, double Q);

// Critical slope (ft/ft): the slope at which the flow Q (ft^3/s) is uniform at the depth yc (ft), from
// Manning's equation. Faults when n, Q or the flow area at yc is zero.
double TrapCriticalSlope(double yc, double b, double zL, double zR, double n, double Q);

// Solve the problem record for Flow from Depth. Faults (a zero depth, no width, a negative slope, a number
// out of range) leave the results before them assigned.
void PrismaticFlowFromDepth();

// Solve the problem record for Depth from Flow: normal depth by bisection between 0 and 999 ft; beyond
// 998 ft the depth is "Overflow" and the results are blank. Faults as above.
void PrismaticDepthFromFlow();

}  // namespace ManningTrap

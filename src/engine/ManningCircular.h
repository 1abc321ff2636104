// Uniform and critical flow in a circular pipe flowing partly full.
//
// Notation: y depth (ft), D diameter (ft), theta angle at the centre under the water (rad), A flow area
// (ft^2), P wetted perimeter (ft), T top width (ft), Q flow (ft^3/s), V mean velocity (ft/s), n Manning's
// roughness coefficient, S slope (ft/ft), g 32.17405 ft/s^2, pi 3.141592654.
#pragma once

#include "engine/EngineValue.h"

namespace ManningCircular {

// Arc cosine of x, -1 < x < 1, as an arc tangent. Faults elsewhere, at -1 and 1 too.
double ArcCos(double x);

// Geometry of the water in a pipe of diameter D > 0 at the depth y > 0, from D up the full pipe: area
// (ft^2), wetted perimeter (ft) and top width (ft, 0 in a full pipe). All but the top width fault at a
// depth of 0 or so near the invert or the crown that the angle at the centre is lost in rounding.
double CircArea(double y, double D);
double CircWettedPerimeter(double y, double D);
double CircTopWidth(double y, double D);

// Froude number V / sqrt(g A / T) of the velocity V (ft/s), T (ft) and A (ft^2) > 0; false when T is zero.
EngineValue CircFroude(double V, double T, double A);

// Greatest flow (ft^3/s) of a pipe, by Manning's equation at y = 0.938 D. Faults when D or n is zero or S
// negative.
double CircMaxFlow(double D, double S, double n);

// Critical depth (ft) of the flow Q (ft^3/s), where A sqrt(A / T) = Q / sqrt(g), by bisection between 0 and
// D; blank within 0.00001 ft of the crown. Faults when D is too small to search.
EngineValue CircCriticalDepth(double D, double Q);

// Critical slope (ft/ft): the slope at which the flow Q (ft^3/s) is uniform at the depth yc (ft), from
// Manning's equation; blank when yc is blank or not below the crown. Faults when n or Q is zero.
EngineValue CircCriticalSlope(const EngineValue& yc, double D, double n, double Q);

// Solve the problem record for Flow from Depth; a depth above the crown makes the flow "Overflow" and the
// results blank. Faults (a zero depth, a negative slope, a number out of range) leave the results before
// them assigned.
void CircularFlowFromDepth();

// Solve the problem record for Depth from Flow: normal depth by bisection between 0 and 0.938 D; a flow not
// below the flow at that depth makes the depth "Overflow" and the results blank. Faults as above.
void CircularDepthFromFlow();

}  // namespace ManningCircular

// What the channel types have in common: Manning's equation, the section factor of critical flow, and the
// results that follow from them.
//
// Notation: A flow area (ft^2), P wetted perimeter (ft), R = A / P hydraulic radius (ft), T top width (ft),
// Q flow (ft^3/s), V mean velocity (ft/s), n Manning's roughness coefficient, S slope (ft/ft).
#pragma once

#include <cmath>

#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/EngineValue.h"

namespace UniformFlow {

// The two functions below with every step checked, to name the reason of a fault.
double CheckedDischarge(double A, double P, double n, double rootS);
double CheckedSectionFactor(double A, double T);

// Manning's equation: Q from A, P, n and the root of the slope. Faults when P or n is zero, R negative or a
// number not finite. An infinite P is the one step that would not show in the result.
inline double Discharge(double A, double P, double n, double rootS) {
  const double Q = rootS * (std::pow(A / P, Constants::TwoThirds) * ((A * Constants::ManningK) / n));
  if (!AllFinite(P, Q)) [[unlikely]]
    return CheckedDischarge(A, P, n, rootS);
  return Q;
}

// Section factor Z = A sqrt(A / T) (ft^2.5). Faults when T is zero, A / T negative or a number not finite.
inline double SectionFactor(double A, double T) {
  const double Z = A * std::sqrt(A / T);
  if (!AllFinite(T, Z)) [[unlikely]]
    return CheckedSectionFactor(A, T);
  return Z;
}

// Section factor at which the flow Q is critical: Q / sqrt(g).
double CriticalSectionFactor(double Q);

// Square root of the slope; faults when the slope is negative.
double RootOfSlope(double S);

// Hydraulic radius A / P; faults when P is zero.
double HydraulicRadius(double A, double P);

// Froude number V / sqrt(g A / T); faults when T or A is zero or A / T negative.
double Froude(double V, double T, double A);

// Slope at which the flow Q is uniform at critical depth, where area and perimeter are A and P: Manning's
// equation solved for S. Faults when A, P, n or Q is zero.
double CriticalSlope(double A, double P, double n, double Q);

// Assign Velocity = Q / A and VelocityHead of the record and return the velocity; faults when A is zero.
double AssignVelocity(double Q, double A);

// The quantity solved for (Flow or Depth of the record) is out of range: "Overflow" there, and the nine
// results blank.
void AssignOverflow(EngineValue& solved);

}  // namespace UniformFlow

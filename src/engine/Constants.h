// The constants of the hydraulics, in feet and seconds. Printed results depend on every digit of them.
#pragma once

#include <bit>
#include <cstdint>

namespace Constants {

inline constexpr double ManningK = 1.485919;    // ft^(1/3)/s: Q = (k/n) A R^(2/3) S^(1/2), critical slope
inline constexpr double Gravity = 32.17405;     // ft/s^2: Froude number, critical-depth condition
inline constexpr double TwoGravity = 64.3481;   // ft/s^2: velocity head V^2 / 2g
inline constexpr double Pi = 3.141592654;       // circular geometry; ten digits, not the full constant
inline constexpr double TwoThirds = 2.0 / 3.0;  // exponent of the hydraulic radius

inline constexpr double PeakFlowDepth = 0.938;   // y/D of a pipe's greatest flow: top of its depth search
inline constexpr double SearchDepth = 999;       // ft above the lowest point: top of an open channel's search
inline constexpr double DeepestResult = 998;     // ft above the lowest point: a depth beyond is no result
inline constexpr double SearchTolerance = 1e-6;  // ft: width at which a search stops
// ft below the crown within which a pipe has no critical depth: the double next below 1e-5.
inline constexpr double CrownTolerance = std::bit_cast<double>(std::uint64_t{0x3EE4F8B588E368F0});

}  // namespace Constants

// How computed numbers are shown: with significant digits, or with fixed decimals.
#pragma once

#include <string>

#include "engine/EngineValue.h"

/// `value` x `factor` with `sigDigits` (1 to 5) significant digits, in the locale's spelling with grouping; a
/// value that is not numeric comes back unchanged. Halves go to the even digit. The number of decimals
/// follows the magnitude before rounding, so 99.96 with three digits is "100.0". EngineFault when the product
/// is not finite.
EngineValue SigFormat(const EngineValue& value, double factor, int sigDigits);

/// `value` x `factor` with exactly `decimals` decimals, likewise. Rounds the 15-digit decimal of the product,
/// halves away from zero; a number shown as zero carries no sign.
EngineValue FixedFormat(const EngineValue& value, double factor, int decimals);

/// A value of the problem record in the unit system and with the digits in force: decimals for depths and
/// elevations, significant digits for everything else. `quantity` is its row of the unit table.
std::string ShownNumber(const EngineValue& value, int quantity, bool fixedDecimals);

/// "3.281 ft": a shown number with the unit of its quantity in the unit system in force.
std::string WithUnit(const std::string& number, int quantity);

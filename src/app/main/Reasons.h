// Why a problem has no result, or one of its results is blank: one table for the main window and the rating
// curves.
#pragma once

#include <string>

#include "engine/ChannelState.h"

struct Reason {
  std::string Text;    ///< for the problem in work; lower case, its numbers in the units on display
  std::string OfMany;  ///< the same for problems that differ in these numbers
};

/// Why the problem in the record has no result, for inputs that the engine was given or would refuse. `fault`
/// is the reason of an EngineFault; empty when there was none, or when the engine was not asked.
Reason WhyNoResult(const std::string& fault);

/// Why this result of a solved problem is blank.
Reason WhyBlank(EngineValue ChannelRecord::*result);

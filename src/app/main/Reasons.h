// Why a problem has no result, or one of its results is blank: one table for the main window and the rating
// curves.
#pragma once

#include <string>

#include "engine/ChannelState.h"
#include "platform/Controls.h"

class frmMain;

struct Reason {
  std::string Text;    ///< for the current problem; no sentence yet, its numbers in the units on display
  std::string OfMany;  ///< the same for problems that differ in these numbers
  TextBox frmMain::*Box = nullptr;  ///< that holds the number to be mended; null where it is not one alone
};

/// Why the problem in the record has no result, for inputs that the engine was given or would refuse. `fault`
/// is the reason of an EngineFault; empty when there was none, or when the engine was not asked.
Reason WhyNoResult(const std::string& fault);

/// The first of these points, as typed, that the point editor would refuse, and why; empty when it would
/// refuse none.
std::string WhyRefused(const PointTable& points, int count);

/// A reason as a sentence of its own, with its initial capitalised.
std::string Sentence(std::string reason);

/// Why this result of a solved problem is blank.
Reason WhyBlank(EngineValue ChannelRecord::*result);

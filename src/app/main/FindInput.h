// Which value of an input lets a given flow run at a given depth.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/main/Fields.h"

/// An input that can be found, or two that are to be equal.
struct Findable {
  std::string Name;
  std::vector<const Field*> Inputs;
};

/// Those of the current channel type, in the order of the main window. A surveyed section has its slope
/// alone: its n stands in its points.
std::vector<Findable> FindableInputs();

struct FoundInput {
  std::string Text;              ///< the value, in the unit on display; empty without one
  std::string WhyNone;           ///< no sentence yet
  const Field* Amiss = nullptr;  ///< the given quantity, if it is one, that cannot be used
};

/// The value in the range of the input at which the channel carries the flow at the depth that are both
/// given by these texts, as the other inputs are: by bisection on the operation that solves for the flow. It
/// has as many digits as that takes to return the flow within 1e-6 of it. The record stays as it is.
/// There is never a second one; FindInput.cpp says why.
FoundInput FindInput(const Findable& wanted, const std::function<const std::string&(const Field&)>& typed);

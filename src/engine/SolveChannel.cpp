// See SolveChannel.h.
#include "engine/SolveChannel.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "engine/ChannelState.h"
#include "engine/ManningCircular.h"
#include "engine/ManningIrreg.h"
#include "engine/ManningTrap.h"

namespace {

struct Solver {
  std::string_view ChannelType;
  void (*FlowFromDepth)();
  void (*DepthFromFlow)();
};

constexpr auto Solvers = std::to_array<Solver>({
    {ChannelTypes::Rectangular, ManningTrap::PrismaticFlowFromDepth, ManningTrap::PrismaticDepthFromFlow},
    {ChannelTypes::Triangular, ManningTrap::PrismaticFlowFromDepth, ManningTrap::PrismaticDepthFromFlow},
    {ChannelTypes::Trapezoidal, ManningTrap::PrismaticFlowFromDepth, ManningTrap::PrismaticDepthFromFlow},
    {ChannelTypes::Circular, ManningCircular::CircularFlowFromDepth, ManningCircular::CircularDepthFromFlow},
    {ChannelTypes::Irregular, ManningIrreg::IrregFlowFromDepth, ManningIrreg::IrregDepthFromFlow},
});

}  // namespace

bool SolveChannel() {
  const auto solver = std::find_if(Solvers.begin(), Solvers.end(), [](const Solver& candidate) {
    return candidate.ChannelType == ChannelState.ChannelType;
  });
  if (solver == Solvers.end()) return false;
  (ChannelState.SolveForFlow ? solver->FlowFromDepth : solver->DepthFromFlow)();
  return true;
}

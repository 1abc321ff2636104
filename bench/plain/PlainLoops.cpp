// See PlainLoops.h.
#include "PlainLoops.h"

#include "engine/ChannelState.h"

namespace PlainLoops {

void SolveChannel() {
  const bool flow = ChannelState.SolveForFlow;
  if (ChannelState.ChannelType == ChannelTypes::Circular) {
    (flow ? CircularFlowFromDepth : CircularDepthFromFlow)();
  } else if (ChannelState.ChannelType == ChannelTypes::Irregular) {
    (flow ? IrregFlowFromDepth : IrregDepthFromFlow)();
  } else {
    (flow ? PrismaticFlowFromDepth : PrismaticDepthFromFlow)();
  }
}

}  // namespace PlainLoops

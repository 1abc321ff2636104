// The problem record; see ChannelState.h.
#include "engine/ChannelState.h"

ChannelRecord ChannelState;

void EmptySection() {
  ChannelState.IrregPointCount = 0;
  ChannelState.IrregPoints = {};
  for (auto& point : ChannelState.IrregEnginePoints) point[3] = EngineValue();
}

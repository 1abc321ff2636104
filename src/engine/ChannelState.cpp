// The problem record; see ChannelState.h.
#include "engine/ChannelState.h"

ChannelRecord ChannelState;

void EmptySection() {
  ChannelState.IrregPointCount = 0;
  // Most cells are empty as it is, and most problems of a batch are no survey.
  for (auto& point : ChannelState.IrregPoints) {
    for (EngineValue& cell : point) {
      if (!cell.IsEmptyText()) cell = EngineValue();
    }
  }
  for (auto& point : ChannelState.IrregEnginePoints) {
    if (!point[3].IsEmptyText()) point[3] = EngineValue();
  }
}

// The problem record; see ChannelState.h.
#include "engine/ChannelState.h"

ChannelRecord ChannelState;

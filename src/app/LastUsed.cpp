// See LastUsed.h.
#include "app/LastUsed.h"

#include "engine/ChannelState.h"

namespace {

struct {
  std::string ChannelType;
  UsedChoices Choices;
} used;

}  // namespace

UsedChoices& LastUsed() {
  if (used.ChannelType != ChannelState.ChannelType) used = {ChannelState.ChannelType, {}};
  return used.Choices;
}

void ForgetLastUsed() {
  used = {};
}

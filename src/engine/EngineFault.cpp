// See EngineFault.h.
#include "engine/EngineFault.h"

void ThrowFault(const char* reason) {
  throw EngineFault(reason);
}

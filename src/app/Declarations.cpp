// See Declarations.h.
#include "app/Declarations.h"

#include "engine/ChannelState.h"

namespace Declarations {

void Reset() {
  ChannelState = ChannelRecord{};
  RatingRange = RatingRangeRecord{};
  DataChanged = false;
  FilePath = FileTitle = Untitled;
  UserPath.clear();
  Done.clear();
  SigDigs = EngDigs = 3;
}

}  // namespace Declarations

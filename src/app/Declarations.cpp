// See Declarations.h.
#include "app/Declarations.h"

#include "app/LastUsed.h"
#include "engine/ChannelState.h"

namespace Declarations {

void Reset() {
  ChannelState = ChannelRecord{};
  RatingRange = RatingRangeRecord{};
  ForgetLastUsed();
  DataChanged = false;
  FilePath = FileTitle = Untitled;
  UserPath.clear();
  Done.clear();
  SigDigs = EngDigs = 3;
}

}  // namespace Declarations

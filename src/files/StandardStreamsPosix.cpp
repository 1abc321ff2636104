// See StandardStreams.h.
#include "files/StandardStreams.h"

void StandardStreams::KeepBytes() {}

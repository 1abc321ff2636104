// See StandardStreams.h.
#include "files/StandardStreams.h"

#include <fcntl.h>
#include <io.h>

#include <cstdio>

void StandardStreams::KeepBytes() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
}

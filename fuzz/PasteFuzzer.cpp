// Feeds texts to the point table as a clipboard, the locale by their length.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "PointsRoundTrip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  if (!PointsRoundTrip::Holds(PointsRoundTrip::PasteComesBack, text,
                              PointsRoundTrip::Locales[size / 4 % PointsRoundTrip::Locales.size()]))
    std::abort();
  return 0;
}

// Feeds bytes to the import of surveys as a file, and makes choices of its list; the locale by their length.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "PointsRoundTrip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  if (!PointsRoundTrip::Holds(PointsRoundTrip::ImportHolds, bytes,
                              PointsRoundTrip::Locales[size / 4 % PointsRoundTrip::Locales.size()]))
    std::abort();
  return 0;
}

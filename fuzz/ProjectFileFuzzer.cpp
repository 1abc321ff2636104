// Feeds bytes to the reader of project files, the locale by their length.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "ProjectRoundTrip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  if (!ProjectRoundTrip::Holds(bytes, ProjectRoundTrip::Locales[size % ProjectRoundTrip::Locales.size()]))
    std::abort();
  return 0;
}

// flumewise-batch: many problems solved without a window.
#include <cstdio>
#include <exception>
#include <stdexcept>

#include "batch/Batch.h"
#include "files/StandardStreams.h"

namespace {

void WriteToStandardOutput(std::string_view part) {
  if (std::fwrite(part.data(), 1, part.size(), stdout) != part.size() || std::fflush(stdout) != 0)
    throw std::runtime_error("the output cannot be written");
}

}  // namespace

int main(int count, char* words[]) {
  StandardStreams::KeepBytes();
  try {
    return Batch::Run(words[0], {words + 1, words + count}, WriteToStandardOutput);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "flumewise-batch: %s\n", failure.what());
    return Batch::Unusable;
  }
}

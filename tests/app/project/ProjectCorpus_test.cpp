// Replays what the fuzzer of project files has kept.
#include <gtest/gtest.h>

#include <filesystem>

#include "../../../fuzz/ProjectRoundTrip.h"
#include "support/TestFolder.h"

namespace {

TEST(ProjectCorpus, ComesBackTheSameOrDoesNotOpen) {
  int files = 0, opened = 0;
  for (const auto& entry : std::filesystem::directory_iterator(CORPUS)) {
    const std::string bytes = BytesOf(entry.path());
    for (const NumberLocale& locale : ProjectRoundTrip::Locales)
      EXPECT_TRUE(ProjectRoundTrip::Holds(bytes, locale)) << entry.path();
    ++files;
    opened += ProjectRoundTrip::ParsedOrNothing(ProjectRoundTrip::WithChecksum(bytes)).has_value();
  }
  EXPECT_GT(files, 10);
  EXPECT_GT(opened, 3);
}

}  // namespace

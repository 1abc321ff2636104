// Replays what the fuzzer of pasted and imported points has kept.
#include <gtest/gtest.h>

#include <filesystem>

#include "../../fuzz/PointsRoundTrip.h"
#include "files/WholeFile.h"

namespace {

TEST(PointsCorpus, NothingCrashesAndAcceptedPointsComeBack) {
  int files = 0;
  int imported = 0;
  for (const char* const folder : {CORPUS, DATA "/survey"}) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      const std::string text = WholeFile::Read(entry.path().string());
      for (const NumberLocale& locale : PointsRoundTrip::Locales)
        EXPECT_TRUE(PointsRoundTrip::Holds(PointsRoundTrip::ImportHolds, text, locale) &&
                    PointsRoundTrip::Holds(PointsRoundTrip::PasteComesBack, text, locale))
            << entry.path();
      ++files;
      if (PointsRoundTrip::ImportedOrNothing(text)) ++imported;
    }
  }
  EXPECT_GT(files, 10);
  EXPECT_GT(imported, 4);
}

}  // namespace

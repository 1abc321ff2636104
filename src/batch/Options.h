// The command line of flumewise-batch.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Batch {

/// One of `Count` parts of the problems, in their order; Index from 1.
struct Part {
  std::size_t Index = 1, Count = 1;
};

/// Which input a rating varies and over which range, in the units that are written.
struct RatingRequest {
  std::string Input;  ///< its name in the record
  double First = 0, Last = 0, Step = 0;
};

struct Options {
  bool Help = false, Version = false;
  bool RecordUnits = false;            ///< feet and seconds, not the units of each problem
  bool Rating = false;                 ///< a rating of each problem in place of its answer
  std::optional<RatingRequest> Range;  ///< none: what the rating table of the window proposes
  std::size_t Jobs = 1;
  Part Of = {};
  std::vector<std::string> Files;
};

/// The options of these arguments; of one given twice the last. std::runtime_error, with what is wrong, when
/// they cannot be understood.
Options ReadOptions(const std::vector<std::string>& arguments);

extern const char* const HelpText;

}  // namespace Batch

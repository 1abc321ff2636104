// Where the numbers of an axis stand, and how they are spelled.
#pragma once

#include <string>
#include <vector>

struct ChartTicks {
  std::vector<double> At;
  std::vector<std::string> Labels;  ///< one for each of `At`, in the locale's spelling
  std::vector<double> Between;      ///< smaller ones without a number
};

/// Round numbers from `lower` to `upper`, at most about `most` of them. None when the range is empty.
ChartTicks LinearTicks(double lower, double upper, int most);

/// The same for a logarithmic axis, which starts above 0: powers of ten while there are enough of them.
ChartTicks LogarithmicTicks(double lower, double upper, int most);

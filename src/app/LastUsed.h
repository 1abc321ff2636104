// What the user last chose for the inputs that rating curves vary, offered again beside what is proposed.
#pragma once

#include <map>
#include <optional>
#include <vector>

/// The range of a varied input, in feet and seconds.
struct UsedRange {
  double First = 0, Last = 0;
  std::optional<double> Step;  ///< a graph asks for none
};

/// By the varied input, which is named by its row of the unit table.
struct UsedChoices {
  std::map<int, UsedRange> Ranges;
  std::map<int, std::vector<double>> Families;  ///< the values of a family of curves, in feet and seconds
};

/// Those made for the current channel type. A call after the type has changed forgets all of them.
UsedChoices& LastUsed();

/// As at the start of the program.
void ForgetLastUsed();

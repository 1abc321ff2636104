// A person who presses and types at random: the program must answer each line, and never crash or show
// nonsense.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "console/Console.h"

struct MonkeyReport {
  int Answered = 0;
  int Shown = 0;                   ///< results that were numbers
  std::vector<std::string> Wrong;  ///< lines whose reply was no text to show a person
  std::size_t MemoryGrowth = 0;    ///< bytes that the process grew by after its first fifth of the lines
};

/// So many lines, always the same ones, obeyed on such a stage.
MonkeyReport LetMonkeyType(Console::MakeStage stage, int lines);

/// `usual`, or what FLUMEWISE_MONKEY_LINES says: a long run is made by hand.
int MonkeyLines(int usual);

// A person who presses and types at random: the program must answer each line, and never crash or show
// nonsense.
#pragma once

#include <string>
#include <vector>

#include "console/Console.h"

/// Obeys so many lines, always the same ones, on such a stage. Returns what went wrong: lines without a
/// reply, replies that are no text to show a person, a monkey that solves nothing, memory that grows.
std::vector<std::string> LetMonkeyType(Console::MakeStage stage, int lines);

/// `usual`, or what FLUMEWISE_MONKEY_LINES says: a long run is made by hand.
int MonkeyLines(int usual);

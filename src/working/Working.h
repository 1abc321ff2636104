// The working: where each number of an answer comes from, in lines that a reader can check with a hand
// calculator.
#pragma once

#include "app/main/frmMain.h"
#include "working/WorkingLine.h"

/// The lines for the current problem, in the units in force. With blank results: what is given, and why
/// nothing follows.
WorkingLines FormWorking(const frmMain& main);

/// Appends the points of the section in work, a row each.
void AddPoints(WorkingLines& lines);

/// The symbol of a quantity as formulas write it: "zL" for "z_L".
std::string SymbolInText(const Field& field);

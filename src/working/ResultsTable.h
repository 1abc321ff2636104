// The problem and its answer as one table, for a spreadsheet or a letter.
#pragma once

class frmMain;

/// Puts inputs, results and notes on the clipboard: as lines with TABs, and as a web page. A slope is copied
/// as the slope itself, whatever the box on the screen shows.
void CopyResultsTable(const frmMain& main);

// Opening a rating window from the main window: a first range for the current problem, the settings dialog,
// and the window unless the dialog was cancelled.
#pragma once

#include "app/main/frmMain.h"

void OpenRatingGraph(const frmMain& main);
void OpenRatingTable(const frmMain& main);

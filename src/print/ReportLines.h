// The lines of the printed report: which inputs and results it shows, and with which units.
#pragma once

#include <string>
#include <vector>

#include "app/main/Fields.h"

/// The inputs of the current channel type, in the order of the report. The points of a section are none of
/// them.
std::vector<const Field*> ReportInputs();

/// The results, in the order of the report.
std::vector<const Field*> ReportResults();

/// The text of the box and its unit.
std::string ReportValue(const frmMain& main, const Field& field);

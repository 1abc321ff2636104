// The lines of the printed report: which boxes of the main window it tells, and with which units.
#pragma once

#include <span>
#include <string>

#include "app/main/frmMain.h"

struct ReportLine {
  Label frmMain::*Caption;
  TextBox frmMain::*Box;
  int Quantity;  ///< its row of the unit table, or HorizontalToOne

  /// A side slope: so many units across to one up.
  static constexpr int HorizontalToOne = 0;

  /// The box's text and its unit.
  std::string Value(const frmMain& main) const;
};

/// The inputs of the channel type in work, in the order of the report. The points of a section are none of
/// them.
std::span<const ReportLine> ReportInputs();

/// The results, in the order of the report.
std::span<const ReportLine> ReportResults();

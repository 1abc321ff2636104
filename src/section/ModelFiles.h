// The files of two models of rivers and sewers that hold surveyed sections.
#pragma once

#include "section/Survey.h"

namespace Survey {

/// How these models write a number.
inline const NumberLocale ModelSpelling{".", ""};

// Each returns the sections of a text of its kind in the order of the file, and nothing for a text of another
// kind. std::runtime_error naming the line where a section is damaged: a count that does not fit, a line that
// is cut off, a number that is none. The numbers are parts of the text, which must outlive the sections.

/// HEC-RAS geometry. A section begins at "Type RM Length"; "#Sta/Elev= N" is followed by N pairs of station
/// and elevation, ten fields of eight characters a line; "#Mann= K , t , 0" by K triples of station, n and 0,
/// nine such fields a line, where each n holds from its station on; "Bank Sta=left,right" names the bank
/// tops. The file does not say its unit.
std::vector<Section> HecRasSections(std::string_view text);

/// The [TRANSECTS] of a SWMM input file. "NC" holds n of the left bank, the right bank and the channel, where
/// 0 keeps the last one; "X1" name, number of points, stations of the left and right bank, 0, 0, 0, the
/// length factor, the width factor and the offset of the elevations; "GR" pairs of elevation and station.
/// FLOW_UNITS gives the unit.
std::vector<Section> SwmmSections(std::string_view text);

}  // namespace Survey

// Numbers that another program copied with the other decimal sign: three decimals look like thousands.
#pragma once

#include <optional>
#include <string>

#include "platform/FlexGrid.h"
#include "platform/Services.h"

namespace PastedSign {

/// Asks whether `sign`, which separates groups here, is the decimal sign of the points of which `doubtful` is
/// one.
BoxAnswer Ask(const std::string& doubtful, const std::string& sign);

/// The clipboard's rows (TAB between cells, CR between rows) as they are to be pasted into the block. Where
/// stations or elevations have one group separator with three digits behind it and none has the decimal sign,
/// the user is asked which sign it is: the numbers are respelled or kept, or nothing is pasted.
std::optional<std::string> Settled(std::string rows, const GridBlock& block);

}  // namespace PastedSign

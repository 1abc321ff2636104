// A survey on its way into the point table: read, asked about, shown in the import dialog.
#pragma once

#include <optional>
#include <string>

#include "section/IrregTable.h"

/// The points that the user takes over from the bytes of a file or a clipboard; nothing when they cancel.
/// What cannot be read is reported in a message box, and nothing is returned.
std::optional<IrregTable::Table> ImportedPoints(const std::string& bytes);

/// The same for a file.
std::optional<IrregTable::Table> PointsOfFile(const std::string& path);

/// True for a clipboard that is more than cells of the table: its first row names columns.
bool HasHeadRow(const std::string& text);

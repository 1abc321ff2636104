// The columns of the sheets that the batch program reads and writes, a row each.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/main/Fields.h"
#include "app/project/ProjectFile.h"

namespace Batch {

/// A problem and what became of it. Its numbers stand in the record.
struct Answer {
  std::string Source;             ///< the file, and of a CSV file the row
  bool Known = false;             ///< false: the problem could not be read
  ProjectFile::Project Typed;     ///< the problem as it was posed
  const Field* Varied = nullptr;  ///< the input that a rating has set in the record
  bool Solved = false;
  std::string Notes, Reason;
};

struct Column {
  std::string Name;
  /// Takes a field that is not empty into a problem; none: the column is only written. std::runtime_error
  /// for what cannot be taken.
  std::function<void(ProjectFile::Project&, const std::string&)> Take;
  /// The field of an answer, in feet and seconds or in the units of the problem; none: the column is only
  /// read.
  std::function<std::string(const Answer&, bool recordUnits)> Text;
};

/// In the order in which they are written and, whatever their order in a sheet, taken.
const std::vector<Column>& Columns();

}  // namespace Batch

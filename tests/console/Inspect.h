// What the console can read: properties of controls, fields of the problem record, shared variables.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Controls.h"
#include "platform/XYChart.h"

namespace Inspect {

/// A property as the console prints it; nothing when the control has no such property.
std::optional<std::string> ControlProperty(const Control& control, std::string_view property);

/// The titles of both axes and the values row by row; an empty value is the empty text.
std::vector<std::string> ChartValues(const XYChart& chart);

/// A field of the problem record: a name, or "points" or "enginepoints" with row and column.
std::optional<std::string> RecordField(const std::vector<std::string>& words);

/// A variable that the windows share.
std::optional<std::string> SharedVariable(std::string_view name);

}  // namespace Inspect

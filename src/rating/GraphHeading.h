// What a graph is of: project and channel.
#pragma once

#include <string>
#include <vector>

#include "app/main/frmMain.h"

/// The name of the project, where it has one, and the channel with its inputs as typed, "Trapezoidal Channel:
/// b 3 m, z 1.5, n 0.015, S 0.0004", but for those that vary within the graph.
std::vector<std::string> GraphHeading(const frmMain& main, const std::vector<const Field*>& varying);

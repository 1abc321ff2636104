// The numbers of the problem record by name, for whoever reads or writes them as a sheet or a conversation.
#pragma once

#include <array>
#include <string_view>

#include "engine/ChannelState.h"

struct RecordCell {
  std::string_view Name;
  EngineValue ChannelRecord::*Cell;
};

inline constexpr auto RecordCells = std::to_array<RecordCell>({
    {"Flow", &ChannelRecord::Flow},
    {"Depth", &ChannelRecord::Depth},
    {"ManningN", &ChannelRecord::ManningN},
    {"Slope", &ChannelRecord::Slope},
    {"Diameter", &ChannelRecord::Diameter},
    {"BaseWidth", &ChannelRecord::BaseWidth},
    {"SideSlopeRight", &ChannelRecord::SideSlopeRight},
    {"SideSlopeLeft", &ChannelRecord::SideSlopeLeft},
    {"Area", &ChannelRecord::Area},
    {"Velocity", &ChannelRecord::Velocity},
    {"VelocityHead", &ChannelRecord::VelocityHead},
    {"WettedPerimeter", &ChannelRecord::WettedPerimeter},
    {"HydraulicRadius", &ChannelRecord::HydraulicRadius},
    {"TopWidth", &ChannelRecord::TopWidth},
    {"Froude", &ChannelRecord::Froude},
    {"CriticalDepth", &ChannelRecord::CriticalDepth},
    {"CriticalSlope", &ChannelRecord::CriticalSlope},
});

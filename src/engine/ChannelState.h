// The one channel problem the program works on: its type, its inputs and its results, in feet and seconds.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "engine/EngineValue.h"

// A channel type is identified everywhere by its caption, in the menus as in project and settings files.
namespace ChannelTypes {

inline constexpr std::string_view Rectangular = "Rectangular Channel";
inline constexpr std::string_view Triangular = "Triangular Channel";
inline constexpr std::string_view Trapezoidal = "Trapezoidal Channel";
inline constexpr std::string_view Circular = "Circular Channel";
inline constexpr std::string_view Irregular = "Irregular Section";
inline constexpr std::array All = {Rectangular, Triangular, Trapezoidal, Circular, Irregular};

}  // namespace ChannelTypes

// Points of an irregular section by (row, column): rows 1 to 101, columns 1 station, 2 elevation and 3
// Manning's n, empty where the n of the row before continues. Row 0 and column 0 are unused.
using PointTable = std::array<std::array<EngineValue, 4>, 102>;

struct ChannelRecord {
  std::string ChannelType;  // one of ChannelTypes::All
  bool SolveForFlow = false;
  int UnitsEorM = 0;  // 0 English, 1 metric: how the boxes show the record; the record itself is in feet

  EngineValue Flow;              // Q, ft^3/s
  EngineValue Depth;             // y, ft above the invert; irregular section: water-surface elevation, ft
  EngineValue ManningN;          // n
  EngineValue Slope;             // S, ft/ft
  EngineValue Diameter;          // D, ft
  EngineValue BaseWidth;         // b, ft
  EngineValue SideSlopeRight;    // zR, horizontal per vertical
  EngineValue SideSlopeLeft;     // zL, horizontal per vertical
  PointTable IrregPoints;        // as the user typed them, in the units on display
  PointTable IrregEnginePoints;  // the same points as numbers, in feet
  int IrregPointCount = 0;

  EngineValue Area;             // A, ft^2
  EngineValue Velocity;         // V = Q / A, ft/s
  EngineValue VelocityHead;     // V^2 / 2g, ft
  EngineValue WettedPerimeter;  // P, ft
  EngineValue HydraulicRadius;  // R = A / P, ft
  EngineValue TopWidth;         // T, ft
  EngineValue Froude;           // V / sqrt(g A / T); false in a full pipe
  EngineValue CriticalDepth;    // yc, ft; irregular section: critical water-surface elevation
  EngineValue CriticalSlope;    // slope of uniform flow at critical depth, ft/ft

  static const std::array<EngineValue ChannelRecord::*, 9> Results;
};

inline constexpr std::array<EngineValue ChannelRecord::*, 9> ChannelRecord::Results = {
    &ChannelRecord::Area,
    &ChannelRecord::Velocity,
    &ChannelRecord::VelocityHead,
    &ChannelRecord::WettedPerimeter,
    &ChannelRecord::HydraulicRadius,
    &ChannelRecord::TopWidth,
    &ChannelRecord::Froude,
    &ChannelRecord::CriticalDepth,
    &ChannelRecord::CriticalSlope};

extern ChannelRecord ChannelState;

// Leaves the problem without a surveyed section: a section entered next takes up no point and no roughness of
// the one given up.
void EmptySection();

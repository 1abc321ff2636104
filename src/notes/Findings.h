// What a careful reviewer would look at beside the results of a solved problem, as numbers.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "engine/ChannelState.h"
#include "notes/SectionLevels.h"

/// A cell of the problem record: it names a quantity, and with it the box that shows it.
using Cell = EngineValue ChannelRecord::*;

enum class Regime { None, Subcritical, Critical, Supercritical };  // None: the pipe is full

struct PipeFindings {
  double Diameter;                   ///< ft
  double FullFlow, GreatestFlow;     ///< ft^3/s, at y = D and at y = 0.938 D
  bool Full;                         ///< the depth is the diameter
  std::optional<double> OtherDepth;  ///< ft: the second depth that carries the flow
};

/// Water that ground above the surface parts from the main channel, which is the water that carries most.
struct Pool {
  double From, To;  ///< stations (ft)
  double Share;     ///< of the flow: that of its area in each subsection
};

struct SectionFindings {
  LevelSearch Flow;      ///< never empty: the level that the box shows is one of them
  LevelSearch Critical;  ///< of the section factor
  std::size_t Shown;     ///< of Flow.Levels, the one in the box
  std::optional<std::size_t> CriticalShown;
  double AboveFirst, AboveLast;  ///< ft of water above the first and the last point; 0 or below: none
  std::vector<Pool> Pools;
  std::optional<double>
      FlowOfOneN;  ///< ft^3/s with each repeated n joined to the one before; none repeated: none
};

/// A result found by a search, and how far it moves when the depth behind it moves by the search's 1e-6 ft.
struct Uncertainty {
  Cell Result;
  double Value, Change;
};

struct Findings {
  bool Solved = false;  ///< false: nothing else holds
  bool SolveForFlow = false;
  double Flow = 0, Depth = 0, Slope = 0;  ///< ft^3/s; ft, a surveyed section's elevation; ft/ft
  double Froude = 0;                      ///< 0 for a full pipe
  Regime State = Regime::None;
  std::vector<double> N;  ///< Manning's n, of each subsection of a surveyed section
  std::optional<PipeFindings> Pipe;
  std::optional<SectionFindings> Section;
  /// Only those that move by more than 0.5e-5 of their value: the others hold the most digits ever shown.
  std::vector<Uncertainty> Uncertain;
};

/// Froude numbers near which a small change moves the water surface far: US Army Corps of Engineers, EM
/// 1110-2-1601.
constexpr bool IsNearCritical(double froude) {
  return 0.86 < froude && froude < 1.13;
}

/// Looks at the problem record just solved. Never faults: what cannot be found is left out.
Findings Examine(const ChannelRecord& record);

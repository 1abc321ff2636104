// A rating series as the points of a graph.
#pragma once

#include <vector>

#include "platform/XYChart.h"
#include "rating/RatingColumn.h"
#include "rating/RatingSeries.h"

/// What is plotted against what.
struct GraphAxes {
  /// The varied input of the range and the result plotted against it.
  static GraphAxes For(const RatingRangeRecord& range);

  RatingColumn Across, Up;
  bool ShowsDepth = false;  ///< at a flow, or over an input: there a critical depth can be compared with it
  RatingColumn CriticalAcross, CriticalUp;  ///< with the critical depth in the place of the depth

  /// The axes change places.
  void Swap();
};

struct RatingCurve {
  std::vector<XYChart::Row> Points;    ///< both empty where one is blank
  std::vector<XYChart::Row> Critical;  ///< none where no depth is plotted
  std::vector<ChartSpan> Falling;      ///< where the flow falls as the level rises, or the reverse
  RatingOutcome Outcome;               ///< with the results that are blank among its gaps
};

/// Runs the series. Of a range of a few hundred neighbouring doubles, whose steps are rounded down, the first
/// 250 points count.
RatingCurve TraceCurve(const frmMain& main, const RatingRangeRecord& range, const GraphAxes& axes);

/// The problem as typed; nothing where it has no place on these axes.
std::optional<ChartPoint> PresentPoint(const frmMain& main, const RatingRangeRecord& range,
                                       const GraphAxes& axes);

// The series behind rating graph and rating table: one input of the problem is stepped over a range, and the
// problem is solved at every step.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/Declarations.h"
#include "app/main/Fields.h"
#include "app/main/Reasons.h"
#include "app/main/frmMain.h"
#include "engine/ChannelState.h"

/// The input that a series varies under this code, which is its row of the unit table; null for a code of
/// none.
const Field* FindVariedInput(int varyCode);

/// Where the range that is offered for a varied input begins, in feet and seconds: at 0, or at the lowest
/// point of a surveyed section. EngineFault for a section without points.
double LowestVaried(const Field& field);

/// What becomes of a last value that the added-up steps miss by a rounding.
enum class LastValue { AsStepped, Snapped };

/// The points of a series that have no result, by reason.
class RatingGaps {
 public:
  void Add(const Reason& why, int points = 1);
  void Add(const RatingGaps& others);
  /// The same without the numbers of one problem, for several that differ in them.
  RatingGaps OfMany() const;
  /// "161 of 201 points: the channel does not carry this flow within 998 ft", for each reason; empty where
  /// every point has a result.
  std::string Text(int points) const;

 private:
  struct Gap {
    Reason Why;
    int Points;
  };
  std::vector<Gap> gaps_;
};

/// What became of a series.
struct RatingOutcome {
  bool Cancelled = false;  ///< by the user; points are missing then
  int Points = 0;          ///< how many were tried
  RatingGaps Gaps;
};

/// Steps the varied input of the problem record from range.RangeMin to range.RangeMax and solves each valid
/// point in the record itself. Where that gives a flow and a depth, `store` is called with the number of the
/// row, from 1, to take what it needs from the record. A point whose operation or whose `store` raises an
/// EngineFault counts no row. A first value of 0 or at the lowest point of the section, with which every
/// proposed range begins, is not counted as a point when it has no result. A long series shows its progress.
/// Afterwards, also on any other exception of `store`, the inputs are as typed in the main window; the
/// results stay those of the last point.
RatingOutcome RunRatingSeries(const frmMain& main, const RatingRangeRecord& range, LastValue lastValue,
                              const std::function<void(int row)>& store);

/// The same without a main window: `goesOn` is asked after each point, with the number of points tried,
/// whether the series goes on, and the inputs stay those of the last point.
RatingOutcome StepRatingSeries(const RatingRangeRecord& range, LastValue lastValue,
                               const std::function<void(int row)>& store,
                               const std::function<bool(int points)>& goesOn);

/// Sets the range in force to the one that is proposed for the solved problem in the record: so many steps
/// from nothing up to the depth or the flow that is given. EngineFault as LowestVaried.
void ProposeRange(int steps);

/// How many steps are proposed for a table.
inline constexpr int ProposedTableSteps = 20;

/// How far a series goes, before anything is solved.
struct RatingPlan {
  int Points = 0;           ///< at which the varied input has a value that can be computed
  bool ReachesEnd = false;  ///< the last value of the range is one of the steps
};

/// Steps through the range as RunRatingSeries does; the problem record is as before.
RatingPlan PlanRatingSeries(const RatingRangeRecord& range, LastValue lastValue);

/// "1 row", "19 rows".
std::string Counted(int number, const std::string& what);

/// True when the problem record can be solved at the present value of the varied input. EngineFault for an
/// irregular section without points.
bool IsRatingPointValid(int varyCode);

/// Sets the inputs of the problem record that the main window's boxes give as numbers, in feet and seconds.
void RestoreInputsFromMain(const frmMain& main);

// The variables that the windows share: the current project, where its file lies, and how numbers are shown.
#pragma once

#include <string>

#include "app/Version.h"
#include "engine/EngineValue.h"
#include "platform/Property.h"

/// The current rating curve: which input is varied, over which range, and what is plotted against it. The
/// range is in feet and seconds.
struct RatingRangeRecord {
  int VaryCode = 0;      ///< the varied input, by its row of the unit table (Units::Quantity)
  int GraphYColumn = 0;  ///< the rating column on the vertical axis of the graph
  EngineValue RangeMin, RangeMax, RangeStep;
  /// How a settings dialog was last left: true by Cancel, false by OK. Its title-bar box leaves it alone.
  bool RatingCancelled = false;

  /// Takes back the range of an earlier moment; how the dialog was left stays.
  void GoBackTo(const RatingRangeRecord& earlier) {
    const bool cancelled = RatingCancelled;
    *this = earlier;
    RatingCancelled = cancelled;
  }
};
inline RatingRangeRecord RatingRange;

namespace Declarations {

inline constexpr const char* AppTitle = "Flumewise";
inline constexpr const char* Untitled = "Untitled";

/// The project has edits that its file has not. A property, so that a window title can show it.
inline Property<bool> DataChanged;

inline std::string FilePath;   ///< full path of the project file; "Untitled" without one
inline std::string FileTitle;  ///< its name without the folder; "Untitled" without one
inline std::string UserPath;   ///< folder, with its last separator, in which the file dialogs start

/// What was last written, in words ("Saved canal.fwd"); empty after the next change.
inline std::string Done;

inline int SigDigs = 3;  ///< significant digits of computed results, 1 to 5
inline int EngDigs =
    3;  ///< decimals of depths and water-surface elevations, 1 to 4 (5 is a stored value only)

/// All of the above, and the problem record, as at the start of the program.
void Reset();

}  // namespace Declarations

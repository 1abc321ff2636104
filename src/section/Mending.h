// What a survey needs to become a section of the point table, step by step: each step is said, with its
// reason and what it does to area and flow, and can be left out.
#pragma once

#include <set>

#include "section/IrregTable.h"
#include "section/SectionEffect.h"

namespace Survey {

enum class Kind {
  Columns,
  WidthFactor,
  Offset,
  Conversion,
  Order,
  Duplicates,
  StrangeN,
  Breaks,
  Walls,
  RepeatedN,
  FrontN,
  Thinning
};
inline constexpr int KindCount = 12;

struct Change {
  Kind What;
  std::string Text;  ///< what is changed and why, in sentences
  Effect Effects;
  bool On;  ///< it was made
};

/// What the user has chosen.
struct Terms {
  int UnitSystem = 0;              ///< of the point table
  std::optional<LengthUnit> Unit;  ///< of the file, where it is not the one that it names
  std::optional<Number> FrontN;    ///< for points without n in front
  std::set<Kind> Off;              ///< steps to be left out
};

struct Mended {
  std::vector<Point> Points;  ///< in the unit of the table, as far as they were mended
  IrregTable::Table Table;
  std::vector<Change> Changes;
  bool LacksN = false;  ///< the first points have none
  std::string Reason;   ///< why the table cannot be used; empty when it can
};

/// What `watch` throws passes through.
Mended Mend(Section section, const Terms& terms, const Watch& watch);

}  // namespace Survey

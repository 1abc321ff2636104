// The steps of mending in their order; see Mending.h.
#include "section/Mending.h"

#include <algorithm>

#include "app/Units.h"
#include "section/MendingSteps.h"
#include "section/Spelling.h"

namespace Survey {

namespace {

/// A step finds what is to be mended and returns the section as it is after that, or nothing. Where leaving
/// it out needs work too, `Leave` does it.
struct Step {
  Kind What;
  std::optional<Found> (*Find)(const Section&, const Terms&);
  void (*Leave)(Section&) = nullptr;
};

// Lengths are settled before the order is judged, the order before what depends on neighbours, and the n
// before the points that a change of n protects.
constexpr Step Steps[] = {
    {Kind::WidthFactor, FindWidthFactor},
    {Kind::Offset, FindOffset},
    {Kind::Conversion, FindConversion},
    {Kind::Order, FindOrder},
    {Kind::Duplicates, FindDuplicates},
    {Kind::StrangeN, FindStrangeN},
    {Kind::Breaks, FindBreaks, BreaksAtPoints},
    {Kind::Walls, FindWalls},
    {Kind::RepeatedN, FindRepeatedN},
    {Kind::FrontN, FindFrontN},
    {Kind::Thinning, FindThinning},
};

void RunSteps(Section& section, const Terms& terms, std::vector<Change>& changes, const Watch& watch) {
  std::optional<Curve> before;  // worked out once it is needed
  double done = 0;
  for (const Step& step : Steps) {
    watch(done++ / std::size(Steps));
    std::optional<Found> found = step.Find(section, terms);
    if (!found) continue;
    if (!before) before = CurveOf(section.Points);
    const bool on = !terms.Off.contains(step.What);
    const Curve after = CurveOf(found->After.Points);
    changes.push_back({step.What, found->Text, EffectOf(*before, after), on});
    if (on) {
      section = std::move(found->After);
      before = after;
    } else if (step.Leave != nullptr) {
      step.Leave(section);
      before.reset();
    }
  }
}

std::string ReasonOf(const Section& section, const Terms& terms, const IrregTable::Table& table) {
  if (section.AsksUnit && !terms.Unit)
    return "The file does not name its unit of length: choose it in the list.";
  if (section.Points.size() < 2) return "A section needs at least two points.";
  if (!section.Points.front().N) return "The first points have no n: enter one.";
  if (section.Points.size() > IrregTable::Rows)
    return "There are more than the " + std::to_string(IrregTable::Rows) + " points that the table holds.";
  const auto failure = IrregTable::CheckTable(table);
  if (!failure) return "";
  const std::size_t line = section.Points[static_cast<std::size_t>(failure->Row) - 1].Line;
  return "Line " + std::to_string(line) + ": " + std::string(IrregTable::MessageOf(failure->Code));
}

IrregTable::Table TableOf(const Section& section) {
  IrregTable::Table table;
  const std::size_t count = std::min<std::size_t>(section.Points.size(), IrregTable::Rows);
  for (std::size_t i = 0; i < count; ++i) {
    const Point& point = section.Points[i];
    table[i + 1] = {"", SpelledForUser(point.X, section.Spelling), SpelledForUser(point.Z, section.Spelling),
                    point.N ? SpelledForUser(*point.N, section.Spelling) : ""};
  }
  return table;
}

}  // namespace

Mended Mend(Section section, const Terms& terms, const Watch& watch) {
  Mended mended;
  try {
    RunSteps(section, terms, mended.Changes, watch);
  } catch (const std::runtime_error& refusal) {
    mended.Reason = refusal.what();
  }
  mended.Table = TableOf(section);
  mended.LacksN = !section.Points.empty() && !section.Points.front().N;
  if (mended.Reason.empty()) mended.Reason = ReasonOf(section, terms, mended.Table);
  mended.Points = std::move(section.Points);
  return mended;
}

}  // namespace Survey

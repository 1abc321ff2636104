// Mending the roughness of a section; see MendingSteps.h.
#include <algorithm>

#include "section/MendingSteps.h"

namespace Survey {

namespace {

/// Elevation of the ground line at a station between two points.
double GroundAt(const Point& a, const Point& b, double station) {
  return a.Z.Value + (b.Z.Value - a.Z.Value) * (station - a.X.Value) / (b.X.Value - a.X.Value);
}

/// The first point at the station or behind it.
auto PointFrom(std::vector<Point>& points, double station) {
  return std::ranges::lower_bound(points, station, {}, [](const Point& point) { return point.X.Value; });
}

/// Lets each n begin at its station. Where no point lies there, `insert` puts one on the ground line; else
/// the next point takes it. Returns how many were put in. An n from before the first point on begins there;
/// one behind the last has no ground.
std::size_t PlaceBreaks(Section& section, bool insert) {
  std::size_t inserted = 0;
  for (const Break& each : section.Breaks) {
    auto at = PointFrom(section.Points, each.Station);
    if (at == section.Points.end()) continue;
    if (insert && at != section.Points.begin() && at->X.Value > each.Station) {
      const Number elevation = Length(GroundAt(*std::prev(at), *at, each.Station));
      at = section.Points.insert(at, {{each.Station, {}}, elevation, std::nullopt, std::prev(at)->Line});
      ++inserted;
    }
    at->N = each.N;
  }
  section.Breaks.clear();
  return inserted;
}

}  // namespace

std::optional<Found> FindStrangeN(const Section& section, const Terms&) {
  const auto isStrange = [](const std::optional<Number>& n) { return n && !(n->Value > 0 && n->Value < 1); };
  const auto where = [](std::size_t line, const Number& n) {
    return " left out: line " + std::to_string(line) + " has " + PlainNumberInLocale(n.Value) +
           ", and an n lies between 0 and 1.";
  };
  const auto point = std::ranges::find_if(section.Points, isStrange, &Point::N);
  const auto each = std::ranges::find_if(section.Breaks, isStrange, &Break::N);
  Found found;
  if (point != section.Points.end()) {
    found.Text = "The column of n" + where(point->Line, *point->N) + " Most likely it is another column.";
  } else if (each != section.Breaks.end()) {
    found.Text = "Every n of the section" + where(each->Line, each->N);
  } else {
    return std::nullopt;
  }
  found.After = section;
  for (Point& left : found.After.Points) left.N.reset();
  found.After.Breaks.clear();
  return found;
}

std::optional<Found> FindBreaks(const Section& section, const Terms&) {
  if (section.Breaks.empty()) return std::nullopt;
  Found found{section, ""};
  const std::size_t inserted = PlaceBreaks(found.After, true);
  found.Text = inserted == 0
                   ? "n put at the points where it begins, as the file names the stations."
                   : Counted(inserted, "point") +
                         " put on the ground line: n changes there, between two points of the file.";
  return found;
}

void BreaksAtPoints(Section& section) {
  PlaceBreaks(section, false);
}

std::optional<Found> FindRepeatedN(const Section& section, const Terms&) {
  const auto repeats = [n = std::optional<double>()](const Point& point) mutable {
    const bool again = point.N && point.N->Value == n;
    if (point.N) n = point.N->Value;
    return again;
  };
  const auto repeated = std::count_if(section.Points.begin(), section.Points.end(), repeats);
  if (repeated == 0) return std::nullopt;
  Found found{section, ""};
  auto again = repeats;
  for (Point& point : found.After.Points) {
    if (again(point)) point.N.reset();
  }
  found.Text =
      "n blanked in " + Counted(static_cast<std::size_t>(repeated), "row") +
      " where it repeats the one before: each n begins a subsection of its own, and a section cut into many "
      "carries more flow than it does.";
  return found;
}

std::optional<Found> FindFrontN(const Section& section, const Terms& terms) {
  if (section.Points.empty() || section.Points.front().N || !terms.FrontN) return std::nullopt;
  const auto next =
      std::ranges::find_if(section.Points, [](const Point& point) { return point.N.has_value(); });
  Found found{section, "n " + PlainNumberInLocale(terms.FrontN->Value) + " given to the first " +
                           Counted(static_cast<std::size_t>(next - section.Points.begin()), "point") +
                           ", for which the file has none."};
  found.After.Points.front().N = terms.FrontN;
  return found;
}

}  // namespace Survey

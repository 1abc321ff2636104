// Mending lengths, the order of the points and their number; see MendingSteps.h.
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "app/Units.h"
#include "section/MendingSteps.h"
#include "section/Thinning.h"

namespace Survey {

namespace {

LengthUnit UnitOfSystem(int system) {
  return system == Units::Metric ? Metres() : Feet();
}

double StationOf(const Point& point) {
  return point.X.Value;
}

std::string LineOf(const Point& point) {
  return "line " + std::to_string(point.Line);
}

double RoundedTo(double value, int decimals) {
  std::array<char, 400> buffer{};
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals);
  double rounded = value;
  if (end.ec == std::errc{}) std::from_chars(buffer.data(), end.ptr, rounded);
  return rounded;
}

/// All stations of the section, multiplied. Rounding keeps apart what was apart.
void ScaleStations(Section& section, double factor) {
  const Number* last = nullptr;
  double lastBefore = 0;
  for (Point& point : section.Points) {
    const double before = point.X.Value;
    point.X = Length(before * factor);
    if (last != nullptr && before != lastBefore && point.X.Value == last->Value)
      point.X.Value = before * factor;
    last = &point.X;
    lastBefore = before;
  }
  for (Break& each : section.Breaks) each.Station = Length(each.Station * factor).Value;
  for (double& bank : section.Banks) bank = Length(bank * factor).Value;
}

bool StationsFall(const std::vector<Point>& points) {
  return points.size() > 1 && points.front().X.Value > points.back().X.Value &&
         std::ranges::is_sorted(points, std::greater<>(), StationOf);
}

/// The points in reverse. An n holds for the ground behind its point, which now lies before it: so each
/// subsection keeps its n and its ends.
std::vector<Point> Reversed(const std::vector<Point>& points) {
  std::vector<std::optional<Number>> holding;  // behind each point
  holding.reserve(points.size());
  for (const Point& point : points) holding.push_back(point.N || holding.empty() ? point.N : holding.back());
  std::vector<Point> reversed(points.rbegin(), points.rend());
  const std::size_t last = points.size() - 1;
  for (std::size_t i = 0; i < last; ++i) {
    const bool begins = i == 0 || points[last - i].N;
    reversed[i].N = begins ? holding[last - i - 1] : std::nullopt;
  }
  reversed[last].N.reset();
  return reversed;
}

/// Sets the points from..to (at one station) apart, the lowest of them staying where it is.
void SetApart(std::vector<Point>& points, std::size_t from, std::size_t to, double step) {
  const bool falls = points[from].Z.Value > points[to].Z.Value;
  for (std::size_t i = from; i < to; ++i) {
    if ((points[i].Z.Value > points[i + 1].Z.Value) != falls)
      Refuse(points[i + 1].Line, 0, "Three points at one station go up and down: the section doubles back.");
  }
  const double station = points[from].X.Value;
  const double count = static_cast<double>(to - from);
  double room = 0;  // 0: no neighbour on that side
  if (falls && from > 0) room = station - points[from - 1].X.Value;
  if (!falls && to + 1 < points.size()) room = points[to + 1].X.Value - station;
  constexpr int finest = 6;  // times a tenth of the step
  for (int finer = 0; finer < finest && room > 0 && step * count >= room; ++finer) step /= 10;
  constexpr int decimals = 9;
  for (std::size_t i = from; i <= to; ++i) {
    const double away = falls ? -static_cast<double>(to - i) : static_cast<double>(i - from);
    if (away != 0) points[i].X = {RoundedTo(station + away * step, decimals), {}};
  }
}

}  // namespace

Number Length(double value) {
  constexpr int decimals = 4;  // finer than any survey, in feet as in metres
  return {RoundedTo(value, decimals), {}};
}

std::optional<Found> FindWidthFactor(const Section& section, const Terms&) {
  if (section.WidthFactor == 1) return std::nullopt;
  Found found{section, "Stations multiplied by " + PlainNumberInLocale(section.WidthFactor) +
                           ": the file names this width factor."};
  ScaleStations(found.After, section.WidthFactor);
  return found;
}

std::optional<Found> FindOffset(const Section& section, const Terms&) {
  if (section.Offset == 0) return std::nullopt;
  Found found{section,
              PlainNumberInLocale(section.Offset) + " added to the elevations: the file names this offset."};
  for (Point& point : found.After.Points) point.Z = Length(point.Z.Value + section.Offset);
  return found;
}

std::optional<Found> FindConversion(const Section& section, const Terms& terms) {
  const LengthUnit own = UnitOfSystem(terms.UnitSystem);
  const LengthUnit x = terms.Unit.value_or(section.XUnit.value_or(section.ZUnit.value_or(own)));
  const LengthUnit z = terms.Unit.value_or(section.ZUnit.value_or(x));
  if (x.Feet == own.Feet && z.Feet == own.Feet) return std::nullopt;
  const std::string from = x.Name == z.Name ? x.Name : x.Name + " and " + z.Name;
  const std::string who = terms.Unit ? "you chose this unit for the file." : "the file names its unit.";
  Found found{section, "Converted from " + from + " to " + own.Name + ": " + who};
  if (x.Feet != own.Feet) ScaleStations(found.After, x.Feet / own.Feet);
  for (Point& point : found.After.Points) {
    if (z.Feet != own.Feet) point.Z = Length(point.Z.Value * (z.Feet / own.Feet));
  }
  return found;
}

std::optional<Found> FindOrder(const Section& section, const Terms&) {
  if (!StationsFall(section.Points)) return std::nullopt;
  Found found{section,
              "Points put in reverse: the file lists them from right to left, and stations must ascend."};
  found.After.Points = Reversed(section.Points);
  return found;
}

std::optional<Found> FindDuplicates(const Section& section, const Terms&) {
  const std::vector<Point>& points = section.Points;
  const auto back = std::ranges::adjacent_find(points, std::greater<>(), StationOf);
  if (back != points.end()) {
    Refuse(std::next(back)->Line, section.StationColumn,
           "Station " + PlainNumberInLocale(std::next(back)->X.Value) + " lies before station " +
               PlainNumberInLocale(back->X.Value) + ": the section doubles back.");
  }
  const auto repeats = [](const Point& a, const Point& b) {
    return a.X.Value == b.X.Value && a.Z.Value == b.Z.Value;
  };
  const auto first = std::ranges::adjacent_find(points, repeats);
  if (first == points.end()) return std::nullopt;
  Found found{section, ""};
  std::vector<Point>& kept = found.After.Points;
  kept.clear();
  for (const Point& point : points) {
    if (kept.empty() || !repeats(kept.back(), point)) {
      kept.push_back(point);
    } else if (point.N) {
      kept.back().N = point.N;
    }
  }
  found.Text = Counted(points.size() - kept.size(), "repeated point") + " left out, the first in " +
               LineOf(*std::next(first)) + ": the same station and elevation as the point before.";
  return found;
}

std::optional<Found> FindWalls(const Section& section, const Terms& terms) {
  if (std::ranges::adjacent_find(section.Points, {}, StationOf) == section.Points.end()) return std::nullopt;
  const double step = terms.UnitSystem == Units::Metric ? 0.001 : 0.01;
  Found found{section, ""};
  std::vector<Point>& points = found.After.Points;
  std::size_t walls = 0;
  std::string first;
  for (std::size_t from = 0; from < points.size(); ++from) {
    std::size_t to = from;
    while (to + 1 < points.size() && points[to + 1].X.Value == points[from].X.Value) ++to;
    if (to == from) continue;
    SetApart(points, from, to, step);
    if (++walls == 1) first = LineOf(points[to]);
    from = to;
  }
  found.Text = Counted(walls, "vertical wall") + ", the first in " + first + ": the upper points moved by " +
               PlainNumberInLocale(step) + " " + UnitOfSystem(terms.UnitSystem).Name +
               " or less away from the water, because each station must lie behind the one before.";
  return found;
}

std::optional<Found> FindThinning(const Section& section, const Terms&) {
  constexpr std::size_t most = IrregTable::Rows;
  if (section.Points.size() <= most) return std::nullopt;
  const std::vector<bool> keep = PointsToKeep(section);
  if (const auto count = std::ranges::count(keep, true); count > static_cast<std::ptrdiff_t>(most)) {
    throw std::runtime_error("The table holds " + std::to_string(most) + " points, and n changes at about " +
                             std::to_string(count) + ".");
  }
  Found found{section, Counted(section.Points.size() - most, "point") + " of " +
                           std::to_string(section.Points.size()) +
                           " left out, those that shape the section least: the table holds " +
                           std::to_string(most) +
                           ". Ends, lowest point, bank tops and changes of n are kept."};
  Thin(found.After.Points, keep, most);
  return found;
}

}  // namespace Survey

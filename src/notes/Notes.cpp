// See Notes.h.
#include "notes/Notes.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string_view>

#include "engine/Constants.h"
#include "engine/NumberText.h"

namespace {

/// What the rows of the table look at.
struct Answer {
  const Findings& Found;
  const Spelling& In;

  const PipeFindings& Pipe() const { return *Found.Pipe; }
  const SectionFindings& Section() const { return *Found.Section; }
  std::string Length(double feet) const { return In.Length(feet); }
  std::string Flow(double cfs) const { return In.Flow(cfs); }
};

std::string Joined(const std::vector<std::string>& parts) {
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0) text += i + 1 < parts.size() ? ", " : " and ";
    text += parts[i];
  }
  return text;
}

/// "70 %"; never "100 %" of what is not the whole, nor "0 %" of what is something.
std::string Percent(double share) {
  const double percent = std::nearbyint(100 * share);
  if (percent >= 100 && share < 1) return "over 99 %";
  if (percent < 1) return "under 1 %";
  return PlainNumberInLocale(percent) + " %";
}

std::string Ordinal(std::size_t index) {
  constexpr const char* Words[] = {"lowest", "second", "third", "fourth", "fifth"};
  return index < std::size(Words) ? Words[index] : "number " + std::to_string(index + 1);
}

std::string Levels(const Answer& a, const LevelSearch& found) {
  std::vector<std::string> parts;
  for (const double level : found.Levels) parts.push_back(a.Length(level));
  return Joined(parts);
}

std::string FallsAt(const Answer& a, const LevelSearch& found) {
  constexpr std::size_t Most = 4;
  std::vector<std::string> parts;
  for (const FallingRange& fall : found.Falls) {
    if (parts.size() == Most) {
      parts.push_back(std::to_string(found.Falls.size() - Most) + " more");
      break;
    }
    parts.push_back(fall.From == fall.To ? "at " + a.Length(fall.From)
                                         : "from " + a.Length(fall.From) + " to " + a.Length(fall.To));
  }
  return Joined(parts);
}

std::string FallsOfFlow(const Answer& a) {
  std::vector<std::string> parts;
  for (const FallingRange& fall : a.Section().Flow.Falls) {
    parts.push_back((fall.From == fall.To ? "at " + a.Length(fall.From)
                                          : "between " + a.Length(fall.From) + " and " + a.Length(fall.To)) +
                    " from " + a.Flow(fall.Before) + " to " + a.Flow(fall.After));
  }
  return Joined(parts);
}

std::string AboveEnds(const Answer& a) {
  std::vector<std::string> parts;
  if (a.Section().AboveFirst > 0)
    parts.push_back(a.Length(a.Section().AboveFirst) + " above the first point");
  if (a.Section().AboveLast > 0) parts.push_back(a.Length(a.Section().AboveLast) + " above the last point");
  return Joined(parts);
}

std::string PoolShares(const Answer& a) {
  std::vector<std::string> parts;
  for (const Pool& pool : a.Section().Pools) {
    parts.push_back("from station " + a.Length(pool.From) + " to " + a.Length(pool.To) + " with " +
                    Percent(pool.Share) + " of the flow");
  }
  return Joined(parts);
}

double SharesOfPools(const Answer& a) {
  double share = 0;
  for (const Pool& pool : a.Section().Pools) share += pool.Share;
  return share;
}

/// Results whose last digit shown moves by half a unit or more within the tolerance of the search.
std::vector<Cell> Unsupported(const Answer& a) {
  std::vector<Cell> cells;
  for (const Uncertainty& each : a.Found.Uncertain) {
    if (2 * std::abs(each.Change) >= a.In.LastPlace(each.Result, each.Value)) cells.push_back(each.Result);
  }
  return cells;
}

std::string UnsupportedNames(const Answer& a) {
  struct Name {
    Cell Of;
    const char* Text;
  };
  constexpr Name Names[] = {{&ChannelRecord::Area, "flow area"},
                            {&ChannelRecord::WettedPerimeter, "wetted perimeter"},
                            {&ChannelRecord::HydraulicRadius, "hydraulic radius"},
                            {&ChannelRecord::Velocity, "velocity"},
                            {&ChannelRecord::VelocityHead, "velocity head"},
                            {&ChannelRecord::TopWidth, "top width"},
                            {&ChannelRecord::Froude, "Froude number"},
                            {&ChannelRecord::CriticalSlope, "critical slope"}};
  std::vector<std::string> parts;
  for (const Cell cell : Unsupported(a)) {
    parts.emplace_back(std::ranges::find(Names, cell, &Name::Of)->Text);
  }
  return Joined(parts);
}

constexpr double SmoothestN = 0.008;
constexpr double RoughestN = 0.3;

std::string OddN(const Answer& a) {
  std::vector<std::string> parts;
  for (const double n : a.Found.N) {
    if (n < SmoothestN || n >= RoughestN) parts.push_back(PlainNumberInLocale(n));
  }
  return Joined(parts);
}

/// What stands in braces in the texts below.
struct Field {
  std::string_view Name;
  std::string (*Text)(const Answer&);
};

const Field Fields[] = {
    {"Fr", [](const Answer& a) { return a.In.Number(a.Found.Froude); }},
    {"depth", [](const Answer& a) { return a.Length(a.Found.Depth); }},
    {"flow", [](const Answer& a) { return a.Flow(a.Found.Flow); }},
    {"fill", [](const Answer& a) { return Percent(a.Found.Depth / a.Pipe().Diameter); }},
    {"diameter", [](const Answer& a) { return a.Length(a.Pipe().Diameter); }},
    {"share", [](const Answer& a) { return Percent(a.Found.Flow / a.Pipe().GreatestFlow); }},
    {"greatest", [](const Answer& a) { return a.Flow(a.Pipe().GreatestFlow); }},
    {"peak", [](const Answer& a) { return a.Length(Constants::PeakFlowDepth * a.Pipe().Diameter); }},
    {"full flow", [](const Answer& a) { return a.Flow(a.Pipe().FullFlow); }},
    {"other depth", [](const Answer& a) { return a.Length(*a.Pipe().OtherDepth); }},
    {"levels", [](const Answer& a) { return Levels(a, a.Section().Flow); }},
    {"shown", [](const Answer& a) { return Ordinal(a.Section().Shown); }},
    {"number of levels", [](const Answer& a) { return std::to_string(a.Section().Flow.Levels.size()); }},
    {"falls", [](const Answer& a) { return FallsAt(a, a.Section().Flow); }},
    {"falls of flow", FallsOfFlow},
    {"critical levels", [](const Answer& a) { return Levels(a, a.Section().Critical); }},
    {"critical shown",
     [](const Answer& a) {
       const auto& shown = a.Section().CriticalShown;
       return shown ? "the box shows the " + Ordinal(*shown) : std::string("the box is blank");
     }},
    {"number of critical levels",
     [](const Answer& a) { return std::to_string(a.Section().Critical.Levels.size()); }},
    {"critical falls", [](const Answer& a) { return FallsAt(a, a.Section().Critical); }},
    {"above ends", AboveEnds},
    {"pools", PoolShares},
    {"share of pools", [](const Answer& a) { return Percent(SharesOfPools(a)); }},
    {"slope", [](const Answer& a) { return a.In.Number(a.Found.Slope); }},
    {"cosine", [](const Answer& a) { return a.In.Number(1 / std::sqrt(1 + a.Found.Slope * a.Found.Slope)); }},
    {"unsupported", UnsupportedNames},
    {"flow of one n", [](const Answer& a) { return a.Flow(*a.Section().FlowOfOneN); }},
    {"odd n", OddN},
};

std::string Filled(std::string_view text, const Answer& a) {
  std::string filled;
  for (;;) {
    const std::size_t open = text.find('{');
    filled += text.substr(0, open);
    if (open == std::string_view::npos) return filled;
    const std::size_t close = text.find('}', open);
    const std::string_view name = text.substr(open + 1, close - open - 1);
    filled += std::ranges::find(Fields, name, &Field::Name)->Text(a);
    text.remove_prefix(close + 1);
  }
}

/// One note: when it holds, and what it says.
struct Row {
  std::vector<Cell> (*Concerns)(const Answer&);
  bool (*Holds)(const Answer&);
  const char* Phrase;  // empty: the verdict only counts it
  const char* Short;
  const char* Long;
  const char* Source;
};

template <Cell cell>
std::vector<Cell> Box(const Answer&) {
  return {cell};
}

std::vector<Cell> Points(const Answer&) {
  return {};
}

template <Regime regime>
bool Is(const Answer& a) {
  return a.Found.State == regime;
}

bool IsNearButNotCritical(const Answer& a) {
  return a.Found.State != Regime::Critical && IsNearCritical(a.Found.Froude);
}

bool IsPipe(const Answer& a) {
  return a.Found.Pipe.has_value();
}

bool IsPartlyFull(const Answer& a) {
  return IsPipe(a) && !a.Pipe().Full;
}

bool HasOtherDepth(const Answer& a) {
  return IsPipe(a) && a.Pipe().OtherDepth;
}

const Row Table[] = {
    {Box<&ChannelRecord::Froude>, Is<Regime::Subcritical>, "subcritical",
     "Subcritical: the water level is governed from downstream",
     "Fr = V / √(g A / T) = {Fr}, less than 1: the flow is subcritical. Small waves can travel upstream, and "
     "the water level is governed from downstream.",
     "Chow, Open-Channel Hydraulics (1959), § 1-3"},
    {Box<&ChannelRecord::Froude>, Is<Regime::Critical>, "critical",
     "Critical: the depth is the critical depth",
     "Fr = V / √(g A / T) = {Fr}: the depth and the critical depth agree within the 1e-6 ft of the search. "
     "The flow is critical, this slope is the critical slope, and the water surface is unstable.",
     "Chow, Open-Channel Hydraulics (1959), § 1-3 and § 4-1"},
    {Box<&ChannelRecord::Froude>, Is<Regime::Supercritical>, "supercritical",
     "Supercritical: the water level is governed from upstream",
     "Fr = V / √(g A / T) = {Fr}, greater than 1: the flow is supercritical. No small wave can travel "
     "upstream, and the water level is governed from upstream.",
     "Chow, Open-Channel Hydraulics (1959), § 1-3"},
    {Box<&ChannelRecord::Froude>, IsNearButNotCritical, "near critical",
     "Near critical: the water surface is unstable",
     "Fr = {Fr} lies between 0.86 and 1.13. Near critical depth a small change of energy, of roughness or of "
     "the section moves the surface far: expect standing waves and leave freeboard, or change slope or "
     "section.",
     "US Army Corps of Engineers, EM 1110-2-1601, Hydraulic Design of Flood Control Channels"},
    {Box<&ChannelRecord::Depth>, [](const Answer& a) { return IsPipe(a) && a.Pipe().Full; }, "full pipe",
     "The pipe is full: it has no regime",
     "y = D: the pipe is full and has no free surface, so no Froude number and no regime. It carries {flow} "
     "with the slope of the pipe as the slope of energy; under pressure it carries more.",
     "Chow, Open-Channel Hydraulics (1959), § 6-4"},
    {Box<&ChannelRecord::Depth>, IsPartlyFull, "{fill} deep", "The pipe is {fill} deep",
     "y / D = {depth} / {diameter}.", "Chow, Open-Channel Hydraulics (1959), § 6-4"},
    {Box<&ChannelRecord::Flow>, IsPipe, "{share} of the greatest flow",
     "{share} of the greatest flow; the full pipe carries {full flow}",
     "Q / Q_max = {flow} / {greatest}. With a free surface the pipe carries most at y = 0.938 D = "
     "{peak}; full, at y = D, it carries {full flow}.",
     "Chow, Open-Channel Hydraulics (1959), § 6-4"},
    {Box<&ChannelRecord::Depth>, HasOtherDepth, "",
     "Two depths carry this flow: {depth}, in the box, and {other depth}",
     "{flow} lies between the flow of the full pipe, {full flow}, and the greatest, {greatest}. Between y = "
     "0.938 D and y = D the wetted perimeter grows faster than the area, and the flow falls; a wave that "
     "touches the crown can fill the pipe.",
     "Chow, Open-Channel Hydraulics (1959), § 6-4"},
    {Box<&ChannelRecord::Depth>,
     [](const Answer& a) { return a.Found.Section && a.Section().Flow.Levels.size() > 1; }, "",
     "{number of levels} water levels carry this flow: {levels}; the box shows the {shown}",
     "Q = Σ (k / n) A R^(2/3) √S is {flow} at each of them. Which of them a stream takes depends on what "
     "governs it.",
     "Manning's equation for a section of several n: Chow, Open-Channel Hydraulics (1959), § 6-5"},
    {Box<&ChannelRecord::Flow>,
     [](const Answer& a) { return a.Found.Section && !a.Section().Flow.Falls.empty(); }, "",
     "The flow falls while the water rises: {falls}",
     "It falls {falls of flow}: water spreading over a bench adds more wetted "
     "perimeter than area. No single water level belongs to a flow in such a range; an n of its own for the "
     "bench makes it a subsection of its own.",
     "Chow, Open-Channel Hydraulics (1959), § 6-5"},
    {Box<&ChannelRecord::CriticalDepth>,
     [](const Answer& a) { return a.Found.Section && a.Section().Critical.Levels.size() > 1; }, "",
     "The flow is critical at {number of critical levels} water levels: {critical levels}; {critical shown}",
     "A √(A / T) = Q / √g holds at each of them. The section factor falls while the water rises {critical "
     "falls}: each level is a critical one "
     "of its own, and a local energy analysis has to choose.",
     "Blalock and Sturm, Minimum Specific Energy in Compound Open Channel, J. Hydraulics Division, ASCE 107 "
     "(1981)"},
    {Box<&ChannelRecord::Depth>, [](const Answer& a) { return a.Found.Section && !AboveEnds(a).empty(); }, "",
     "The water stands {above ends} of the section",
     "No wall is counted there: the water ends at that station "
     "and the wetted perimeter is that of the ground alone. Survey further, or count the wall by a point "
     "above the water.",
     "Definition of the wetted perimeter: Chow, Open-Channel Hydraulics (1959), § 2-2"},
    {Box<&ChannelRecord::Depth>,
     [](const Answer& a) { return a.Found.Section && !a.Section().Pools.empty(); }, "",
     "Water behind a crest that the main channel does not reach carries {share of pools} of the flow",
     "Ground above the water parts it from the main channel {pools}: {share of pools} in all. Water gets "
     "there only over a crest upstream or downstream; where it cannot, leave those points out. The share is "
     "that of the water's area in the flow of each subsection.",
     "Manning's equation, V = Q / A of each subsection"},
    {Box<&ChannelRecord::Slope>, [](const Answer& a) { return a.Found.Slope > 0.1; }, "",
     "Steep: the depth is measured at right angles to the bed",
     "S = {slope} is greater than 0.1. The depth of Manning's equation is measured at right angles to the "
     "bed; the vertical depth is y / cos θ and the pressure head y cos θ, with cos θ = 1 / √(1 + S²) = "
     "{cosine}. Steep flow also takes in air.",
     "Chow, Open-Channel Hydraulics (1959), § 2-10"},
    {Unsupported, [](const Answer& a) { return !Unsupported(a).empty(); }, "",
     "The last digit shown is not certain: {unsupported}",
     "The search ends within 1e-6 ft of the depth. So small a depth leaves the last digit shown of these "
     "results uncertain: {unsupported}. Show fewer digits, or give the depth and solve for the flow.",
     "The search halves its interval until it is 1e-6 ft wide"},
    {Points, [](const Answer& a) { return a.Found.Section && a.Section().FlowOfOneN; }, "",
     "The same n is repeated: with one n the flow would be {flow of one n}",
     "Each n in a row of the points begins a subsection with a wetted perimeter and a hydraulic radius of "
     "its own, also where it repeats the n before. The subsections carry {flow} together; with each repeated "
     "n left blank the same water would carry {flow of one n}.",
     "Subsections of a composite section: Chow, Open-Channel Hydraulics (1959), § 6-5"},
    {Box<&ChannelRecord::ManningN>, [](const Answer& a) { return !OddN(a).empty(); }, "",
     "Unusual roughness: n = {odd n}",
     "n = {odd n} is out of the usual range of channels: smoother than 0.008 is smoother than any surface of "
     "the tables, 0.3 or more is that of shallow flow through dense growth, not of a channel.",
     "Chow, Open-Channel Hydraulics (1959), table 5-6; USDA, TR-55 (1986), table 3-1"},
};

}  // namespace

std::vector<Note> NotesOn(const Findings& found, const Spelling& spelling) {
  std::vector<Note> notes;
  if (!found.Solved) return notes;
  const Answer answer{found, spelling};
  for (const Row& row : Table) {
    if (!row.Holds(answer)) continue;
    Note& note = notes.emplace_back();
    note.Concerns = row.Concerns(answer);
    note.Phrase = Filled(row.Phrase, answer);
    note.Short = Filled(row.Short, answer);
    note.Long = Filled(row.Long, answer);
    note.Source = row.Source;
  }
  return notes;
}

std::string Verdict(const Findings& found, const std::vector<Note>& notes) {
  std::string text = found.SolveForFlow ? "Flow solved" : "Depth solved";
  const char* separator = ": ";
  for (const Note& note : notes) {
    if (note.Phrase.empty()) continue;
    text += separator + note.Phrase;
    separator = ", ";
  }
  return text;
}

std::string NoteCount(const std::vector<Note>& notes) {
  const auto count = std::ranges::count_if(notes, [](const Note& note) { return note.Phrase.empty(); });
  if (count == 0) return "";
  return count == 1 ? "1 note" : std::to_string(count) + " notes";
}

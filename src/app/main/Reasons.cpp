// See Reasons.h.
#include "app/main/Reasons.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "app/Declarations.h"
#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "app/main/frmMain.h"
#include "engine/Constants.h"
#include "engine/ManningCircular.h"
#include "engine/NumberText.h"

namespace {

using Record = ChannelRecord;
using Point = std::array<EngineValue, 4>;

bool IsPipe(const Record&) {
  return CurrentChannelType().Is == Shape::Pipe;
}
bool IsSection(const Record&) {
  return CurrentChannelType().IsSurveyed();
}
bool Always(const Record&) {
  return true;
}

std::span<const Point> Points(const Record& r) {
  return std::span(r.IrregEnginePoints).subspan(1, static_cast<std::size_t>(r.IrregPointCount));
}

double LowPoint(const Record& r) {
  double lowest = HUGE_VAL;
  for (const Point& point : Points(r)) lowest = std::min(lowest, point[2].Number());
  return lowest;
}

/// The limit of a flow or a depth with its unit: rounded, but never to a number that would be refused.
std::string Limit(double limit, int quantity, bool included) {
  const double factor = UnitFactor(ChannelState.UnitsEorM, quantity);
  const auto refused = [&](const std::string& shown) {
    const double typed = LeadingNumber(shown) * factor;
    return included ? typed > limit && !frmMain::IsFull(typed, limit) : typed >= limit;
  };
  const std::string nearest = ShownNumber(limit, quantity, false);
  if (!refused(nearest)) return WithUnit(nearest, quantity);
  const double lastDigit = std::pow(10, std::floor(std::log10(limit / factor)) - Declarations::SigDigs + 1);
  return WithUnit(ShownNumber(limit - lastDigit * factor, quantity, false), quantity);
}

bool HasNoWidth(const Record& r) {
  return CurrentChannelType().Is == Shape::Prism && r.BaseWidth.Number() == 0 &&
         r.SideSlopeLeft.Number() == 0 && r.SideSlopeRight.Number() == 0;
}

bool IsAboveEnds(const Record& r) {
  if (!IsSection(r)) return false;
  const double lowerEnd = std::min(Points(r).front()[2].Number(), Points(r).back()[2].Number());
  return lowerEnd < LowPoint(r) + Constants::DeepestResult;
}

std::string DeepestResult() {
  const double length = UnitFactor(ChannelState.UnitsEorM, Units::Length);
  return WithUnit(FixedFormat(Constants::DeepestResult, 1 / length, 0).Text(), Units::Length);
}

struct Row {
  bool (*Applies)(const Record&);
  std::string (*Text)(const Record&);
  const char* OfMany = nullptr;  ///< where the text has numbers that an input may change
  TextBox frmMain::*Box = nullptr;
};

/// What is amiss with the inputs together, whatever the engine made of it. The first that applies counts.
constexpr Row Inputs[] = {
    {HasNoWidth, [](const Record&) -> std::string { return "the channel has no width"; }},
    {[](const Record& r) {
       const double lowest = LowPoint(r);
       return IsSection(r) && r.SolveForFlow && std::isfinite(lowest) && !(r.Depth.Number() > lowest);
     },
     [](const Record& r) {
       return "WSElev must be above the lowest point of the section, " +
              WithUnit(ShownNumber(LowPoint(r), Units::Length, true), Units::Length);
     },
     nullptr, &frmMain::tbDepth},
    {[](const Record& r) { return IsPipe(r) && r.SolveForFlow && r.Depth.Number() > r.Diameter.Number(); },
     [](const Record& r) {
       return "the depth is above the crown of the pipe, at " +
              Limit(r.Diameter.Number(), Units::Length, true);
     },
     "the depth is above the crown of the pipe", &frmMain::tbDepth},
};

/// Why no depth carries the flow. One always applies.
constexpr Row Overflows[] = {
    {IsPipe,
     [](const Record& r) {
       const double most =
           ManningCircular::CircMaxFlow(r.Diameter.Number(), r.Slope.Number(), r.ManningN.Number());
       return "the pipe carries at most " + Limit(most, Units::Flow, false) + ", at " +
              PlainNumberInLocale(Constants::PeakFlowDepth) + " of its diameter";
     },
     "the pipe does not carry this flow"},
    {IsAboveEnds,
     [](const Record&) {
       return "the water rises above the ends of the section, which does not carry this flow within " +
              DeepestResult();
     }},
    {Always, [](const Record&) { return "the channel does not carry this flow within " + DeepestResult(); }},
};

Reason ReasonOf(const Row& row) {
  const std::string text = row.Text(ChannelState);
  return {text, row.OfMany == nullptr ? text : row.OfMany, row.Box};
}

/// What the point editor refuses, for points that come from a file.
struct PointRow {
  bool (*IsAmiss)(const Point& point, const Point* before);
  const char* Rule;
};

template <std::size_t Column>
bool IsBeyondNumbers(const Point& point, const Point*) {
  return IsTooLarge(point[Column].Text());
}

constexpr PointRow PointRules[] = {
    {IsBeyondNumbers<1>, "Station is too large a number"},
    {IsBeyondNumbers<2>, "Elevation is too large a number"},
    {IsBeyondNumbers<3>, "Manning's n is too large a number"},
    {[](const Point& point, const Point*) { return !point[1].IsNumeric(); }, "Station must be a number"},
    {[](const Point& point, const Point* before) {
       return before != nullptr && !(point[1].Number() > (*before)[1].Number());
     },
     "Station must be greater than the one before"},
    {[](const Point& point, const Point*) { return !point[2].IsNumeric(); }, "Elevation must be a number"},
    {[](const Point& point, const Point*) {
       return !point[3].IsEmptyText() && !(point[3].IsNumeric() && point[3].Number() > 0);
     },
     "Manning's n must be greater than 0"},
};

struct BlankRow {
  EngineValue Record::*Result;
  bool (*Applies)(const Record&);
  std::string (*Text)();
};

constexpr BlankRow Blanks[] = {
    {&Record::Froude, IsPipe,
     []() -> std::string { return "a full pipe has no free surface, so no Froude number"; }},
    {&Record::CriticalDepth, IsPipe,
     []() -> std::string { return "the critical depth is at the crown of the pipe"; }},
    {&Record::CriticalDepth, Always, [] { return "the critical depth is beyond " + DeepestResult(); }},
    {&Record::CriticalSlope, IsSection,
     []() -> std::string { return "a surveyed section has no critical slope"; }},
    {&Record::CriticalSlope, Always,
     []() -> std::string { return "there is no critical slope without a critical depth"; }},
};

}  // namespace

Reason WhyNoResult(const std::string& fault) {
  for (const Field& field : Fields()) {
    // A range may begin where the main window lets nothing begin.
    if (!CurrentChannelType().Has(field) || field.IsResult() || field.IsElevation()) continue;
    if (FormStuff::Within((ChannelState.*field.Cell).Number(), field.RatedBounds)) continue;
    const std::string text = field.Caption.Current() + (" must be" + FormStuff::RangeText(field.RatedBounds));
    return {text, text, field.Box};
  }
  const auto applies = [](const Row& row) { return row.Applies(ChannelState); };
  const Row* const input = std::ranges::find_if(Inputs, applies);
  if (input != std::end(Inputs)) return ReasonOf(*input);
  if (!fault.empty()) return {fault, fault};
  return ReasonOf(*std::ranges::find_if(Overflows, applies));
}

std::string WhyRefused(const PointTable& points, int count) {
  for (std::size_t row = 1; row <= static_cast<std::size_t>(count); ++row) {
    const Point* const before = row == 1 ? nullptr : &points[row - 1];
    for (const PointRow& rule : PointRules) {
      if (rule.IsAmiss(points[row], before)) return "Point " + std::to_string(row) + ": " + rule.Rule;
    }
  }
  return "";
}

std::string Sentence(std::string reason) {
  if (!reason.empty() && reason.front() >= 'a' && reason.front() <= 'z') {
    reason.front() = static_cast<char>(reason.front() - 'a' + 'A');
  }
  return reason;
}

Reason WhyBlank(EngineValue ChannelRecord::*result) {
  const auto* const row = std::ranges::find_if(
      Blanks, [=](const BlankRow& each) { return each.Result == result && each.Applies(ChannelState); });
  const std::string text = row == std::end(Blanks) ? "" : row->Text();
  return {text, text};
}

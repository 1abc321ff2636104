// See FindInput.h.
//
// Why there is one value at most. Q rises where A^5 / P^2 rises, that is where 5 P dA > 2 A dP, and y is
// given.
//   b:   dA = y db, dP = db; A = by + zy^2 with z = (zL + zR) / 2, and P > b + 2zy, so
//        5 P dA > (5by + 10zy^2) db > 2 A dP
//   zL:  dA = y^2/2 dz, dP < y dz; 5 P dA > (5/2 by^2 + 5zy^3) dz > (2by^2 + 2zy^3) dz > 2 A dP. So for zR,
//   and
//        for both together with twice dA and dP.
//   D:   the angle of the wetted arc t = 2 acos(1 - 2y/D) falls while D rises; Q = D^(8/3) f(y/D), and
//        r f'(r) / f(r) is less than 8/3 for 0 < r < 1: from 13/6 at an empty pipe it falls.
// n and S are factors of Q.
#include "app/main/FindInput.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

#include "app/FormStuff.h"
#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "app/main/Problem.h"
#include "app/main/Reasons.h"
#include "app/main/frmMain.h"
#include "engine/ChannelState.h"
#include "engine/EngineFault.h"
#include "engine/NumberText.h"
#include "engine/SolveChannel.h"

namespace {

using TypedText = std::function<const std::string&(const Field&)>;

constexpr double AsGood = 1e-6;   // of the flow
constexpr double Greatest = 1e9;  // of an input without an upper bound, in the record's units

class KeptRecord {
 public:
  KeptRecord() = default;
  ~KeptRecord() { ChannelState = std::move(before_); }
  KeptRecord(const KeptRecord&) = delete;
  KeptRecord& operator=(const KeptRecord&) = delete;

 private:
  ChannelRecord before_ = ChannelState;
};

double FactorOf(const Field& field) {
  return UnitFactor(ChannelState.UnitsEorM, field.Quantity);
}

/// The flow at the depth in the record; nothing where the engine gives none.
std::optional<double> FlowAtDepth() {
  try {
    SolveChannel();
  } catch (const EngineFault&) {
    return std::nullopt;
  }
  if (!ChannelState.Flow.IsNumeric()) return std::nullopt;
  return ChannelState.Flow.Number();
}

/// A search on the record, which has the other inputs and the depth and is solved for the flow.
class Search {
 public:
  Search(const Findable& wanted, double flow) : wanted_(wanted), flow_(flow) {
    const Field& input = *wanted.Inputs.front();
    // Water stands no higher than the crown.
    least_ = input.Cell == &ChannelRecord::Diameter ? ChannelState.Depth.Number() : *input.Bounds.Min;
    most_ = input.Bounds.Max.value_or(Greatest);
    const double between = least_ + (std::min(most_, least_ + 1) - least_) / 2;
    const auto lower = FlowWith(least_ + (between - least_) / 2);
    const auto upper = FlowWith(between);
    falls_ = lower && upper && *lower > *upper;
  }

  /// The value; nothing outside the range.
  std::optional<double> Value() const {
    if (const auto first = FlowWith(least_)) {
      if (*first == flow_) return least_;
      if (!IsAbove(*first)) return std::nullopt;
    }
    double lo = least_;
    double hi = std::min(most_, std::max(2 * least_, 1.0));
    for (;; lo = hi, hi *= 2) {
      const auto last = FlowWith(hi);
      if (!last || !IsAbove(*last)) break;
      if (hi >= most_) return std::nullopt;
    }
    for (double mid = lo + (hi - lo) / 2; mid > lo && mid < hi; mid = lo + (hi - lo) / 2) {
      const auto carried = FlowWith(mid);
      (carried && IsAbove(*carried) ? lo : hi) = mid;
    }
    const auto reached = FlowWith(hi);
    const bool found = hi < most_ && reached && std::abs(*reached - flow_) <= AsGood * flow_;
    return found ? std::optional(hi) : std::nullopt;
  }

  /// What the channel carries whatever the value, for a flow that no value gives.
  std::string WhyNone() const {
    const auto first = FlowWith(least_);
    const bool tooSmall = first && !falls_ && *first > flow_;
    const auto limit = tooSmall ? first : FlowWith(most_);
    if (!limit) return WhyNoResult({}).Text;
    const char* const is = tooSmall ? "at least " : falls_ ? "more than " : "less than ";
    return "at this depth the flow is " +
           (is + WithUnit(ShownNumber(*limit, Units::Flow, false), Units::Flow)) + " for every " +
           wanted_.Name;
  }

 private:
  std::optional<double> FlowWith(double x) const {
    for (const Field* const input : wanted_.Inputs) ChannelState.*input->Cell = x;
    return FlowAtDepth();
  }

  /// The value is above the one with which the channel carries so much.
  bool IsAbove(double carried) const { return falls_ ? carried > flow_ : carried < flow_; }

  const Findable& wanted_;
  double flow_;
  double least_ = 0, most_ = 0;
  bool falls_ = false;
};

/// The number rounded to so many significant digits, as the user types it.
std::string Rounded(double x, int digits) {
  std::array<char, 32> text{};
  const char* const end =
      std::to_chars(text.data(), text.data() + text.size(), x, std::chars_format::scientific, digits - 1).ptr;
  double rounded = 0;
  std::from_chars(text.data(), end, rounded);
  return PlainNumberInLocale(rounded);
}

bool IsWanted(const Findable& wanted, const Field& field) {
  return std::ranges::find(wanted.Inputs, &field) != wanted.Inputs.end();
}

/// The fewest digits of the value with which solving returns the flow.
std::string Spelled(const Findable& wanted, double value, double flow, const TypedText& typed) {
  constexpr int MostDigits = 17;  // by which every double is known
  std::string text;
  for (int digits = 1; digits <= MostDigits; ++digits) {
    text = Rounded(value / FactorOf(*wanted.Inputs.front()), digits);
    if (!Problem::OffenceOf(*wanted.Inputs.front(), text).empty()) continue;
    Problem::TakeInputs([&](const Field& field) -> const std::string& {
      return IsWanted(wanted, field) ? text : typed(field);
    });
    const auto again = FlowAtDepth();
    if (again && std::abs(*again - flow) <= AsGood * flow) break;
  }
  return text;
}

/// What is wrong with the quantities that are given; nothing found and nothing amiss when they can be used.
FoundInput OffenceOfGiven(const Findable& wanted, const TypedText& typed) {
  FoundInput offence{"", Problem::OffenceOfSection()};
  // Flow and depth are both given: each is an input in one of the modes.
  for (const bool forFlow : {false, true}) {
    ChannelState.SolveForFlow = forFlow;
    for (const Field& field : Fields()) {
      if (!offence.WhyNone.empty()) return offence;
      if (field.Result == ResultWhen::Always || IsWanted(wanted, field)) continue;
      offence.WhyNone = Problem::OffenceOf(field, typed(field));
      offence.Amiss = &field;
    }
  }
  return offence;
}

}  // namespace

std::vector<Findable> FindableInputs() {
  std::vector<Findable> found;
  Findable both{"Both Side Slopes", {}};
  for (const Field& field : Fields()) {
    if (field.Result != ResultWhen::Never || !CurrentChannelType().AsksFor(field)) continue;
    found.push_back({field.Caption.Current(), {&field}});
    if (field.Box == &frmMain::tbSSL || field.Box == &frmMain::tbSSR) both.Inputs.push_back(&field);
  }
  if (both.Inputs.size() == 2) found.push_back(both);
  return found;
}

FoundInput FindInput(const Findable& wanted, const TypedText& typed) {
  const KeptRecord kept;
  FoundInput offence = OffenceOfGiven(wanted, typed);
  if (!offence.WhyNone.empty()) return offence;
  const Field& flowField = FieldOf(&frmMain::tbFlow);
  const double flow = LeadingNumber(typed(flowField)) * FactorOf(flowField);
  ChannelState.SolveForFlow = true;
  Problem::TakeInputs(typed);
  const Search search(wanted, flow);
  const auto value = search.Value();
  if (!value) return {"", search.WhyNone()};
  return {Spelled(wanted, *value, flow, typed), ""};
}

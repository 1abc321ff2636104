// What the boxes do not show: other depths, further results, changed inputs, and the notes. See
// WorkingWriter.h.
#include <algorithm>
#include <cmath>

#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/NumberText.h"
#include "engine/SolveChannel.h"
#include "engine/UniformFlow.h"
#include "notes/Notes.h"
#include "working/WorkingWriter.h"

namespace {

using Numbers = std::span<const double>;

/// The record as it is now, brought back at the end: solving what-ifs changes it.
class KeptRecord {
 public:
  KeptRecord() : kept_(ChannelState) {}
  ~KeptRecord() { ChannelState = kept_; }
  KeptRecord(const KeptRecord&) = delete;
  KeptRecord& operator=(const KeptRecord&) = delete;

 private:
  const ChannelRecord kept_;
};

void Scale(EngineValue& cell, double by) {
  cell = cell.Number() * by;
}

bool IsBelowGround(double W) {
  const auto first = ChannelState.IrregEnginePoints.begin() + 1;
  return std::any_of(first, first + ChannelState.IrregPointCount,
                     [W](const auto& point) { return point[2].Number() > W; });
}

double VelocityHead(double Q, double g, double A) {
  return Q * Q / (2 * g * A * A);
}

std::string FirstUpper(std::string text) {
  if (text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 'a' + 'A');
  return text;
}

void ScaleRoughness(double by) {
  Scale(ChannelState.ManningN, by);
  for (int row = 1; row <= ChannelState.IrregPointCount; ++row) {
    EngineValue& n = ChannelState.IrregEnginePoints[static_cast<std::size_t>(row)][3];
    if (!n.IsEmptyText()) Scale(n, by);
  }
}

}  // namespace

void WorkingWriter::OtherDepths() {
  if (found_.Pipe) {
    PipeCapacity();
    SecondDepth();
  } else if (found_.Section) {
    WaterLevels("carry the flow", found_.Section->Flow, found_.Section->Shown, "Q", UnitKind::Flow,
                [this](double Q) { return InUnits(Q, Units::Flow); });
    WaterLevels("are critical", found_.Section->Critical, found_.Section->CriticalShown, "A √(A / T)",
                UnitKind::SectionFactor, [this](double Z) { return InSectionFactorUnits(Z); });
  }
}

void WorkingWriter::PipeCapacity() {
  const PipeFindings& pipe = *found_.Pipe;
  Heading("Capacity of the pipe");
  ShownNumbers& x = numbers_;
  x["Q_full"] = {InUnits(pipe.FullFlow, Units::Flow)};
  Add({{"Q_full", "(k / n) (π D² / 4) (D / 4)^(2/3) √S",
        "({k} / {n}) × ({π} × {D}² / 4) × ({D} / 4)^(2/3) × √{S}",
        [](Numbers n) {
          return n[0] / n[1] * (n[2] * n[3] * n[3] / 4) * std::pow(n[3] / 4, Constants::TwoThirds) *
                 std::sqrt(n[4]);
        },
        UnitKind::Flow}},
      x);
  ShownNumbers peak = x;
  SetGeometry(Constants::PeakFlowDepth * pipe.Diameter, peak);
  peak["y"].Text.clear();
  peak.erase("T");
  peak["Q"] = {InUnits(pipe.GreatestFlow, Units::Flow)};
  peak["0.938"] = {Constants::PeakFlowDepth, PlainNumberInLocale(Constants::PeakFlowDepth)};
  Add({{"y", "0.938 D", "{0.938} × {D}", [](Numbers n) { return n[0] * n[1]; }, UnitKind::Length}}, peak,
      "_max");
  AddGeometry(peak, "_max");
  AddManning(peak, "_max");
  x["Q_max"] = peak["Q"];
  x["y / D"] = {found_.Depth / pipe.Diameter};
  x["Q / Q_max"] = {found_.Flow / pipe.GreatestFlow};
  const auto ratio = [](Numbers n) { return n[0] / n[1]; };
  Add({{"y / D", "", "{y} / {D}", ratio, UnitKind::None},
       {"Q / Q_max", "", "{Q} / {Q_max}", ratio, UnitKind::None}},
      x);
}

void WorkingWriter::SecondDepth() {
  Heading("Second depth");
  const PipeFindings& pipe = *found_.Pipe;
  if (!pipe.OtherDepth) {
    Say("No second depth carries the flow: it is not between Q_full and Q_max.");
    return;
  }
  const double peak = Constants::PeakFlowDepth * pipe.Diameter;
  if (*pipe.OtherDepth < pipe.Diameter) {
    FlowSearch(found_.Depth > peak ? 0 : pipe.Diameter, peak, "y_2");
  } else {
    Result({"y_2", "D", Fine(pipe.Diameter)});
  }
  Say("The pipe carries the flow at the depth in the box, " + Fine(found_.Depth) +
      ", and at a second depth, " + Fine(*pipe.OtherDepth) + ".");
}

void WorkingWriter::WaterLevels(const char* what, const LevelSearch& found, std::optional<std::size_t> shown,
                                const std::string& quantity, UnitKind unit,
                                const std::function<double(double)>& inUnits) {
  Heading(std::string("Water levels that ") + what);
  const bool ofFlow = unit == UnitKind::Flow;
  const auto text = [&](double value) { return WithUnit(inUnits(value), unit); };
  Heads({"Water level", quantity, "In the box"});
  for (std::size_t i = 0; i < found.Levels.size(); ++i) {
    const double W = found.Levels[i];
    Row({Fine(W), text(ofFlow ? Carried(W) : SectionFactorAt(W)), i == shown ? "yes" : "no"});
  }
  if (found.Falls.empty()) return;
  Say(quantity + " falls while the water rises:");
  Heads({"From", "To", quantity + " before", quantity + " after"});
  for (const FallingRange& fall : found.Falls) {
    Row({Fine(fall.From), Fine(fall.To), text(fall.Before), text(fall.After)});
  }
}

void WorkingWriter::MoreResults() {
  Heading("More results");
  ShownNumbers& x = numbers_;
  if (IsSection()) {
    x["W_min"] = {InUnits(low_, Units::Length), FineNumber(low_)};
    x["y"] = {InUnits(Depth(), Units::Length)};
    Add({{"y", "W - W_min", "{W} - {W_min}", [](Numbers n) { return n[0] - n[1]; }, UnitKind::Length}}, x);
  }
  x["Specific energy E"] = {x["y"].Value + x["h_v"].Value};
  if (x.contains("T")) {
    x["Hydraulic depth"] = {x["A"].Value / x["T"].Value};
    x["Section factor Z"] = {x["A"].Value * std::sqrt(x["Hydraulic depth"].Value)};
  }
  x["Conveyance K"] = {x["Q"].Value / std::sqrt(found_.Slope)};
  x["Mean boundary shear τ"] = {x["γ"].Value * x["R"].Value * found_.Slope};
  x["Greatest boundary shear"] = {x["γ"].Value * x["y"].Value * found_.Slope};
  x["Reynolds number Re"] = {x["V"].Value * x["R"].Value / x["ν"].Value};
  const auto product = [](Numbers n) { return n[0] * n[1] * n[2]; };
  Add({{"Hydraulic depth", "A / T", "{A} / {T}", [](Numbers n) { return n[0] / n[1]; }, UnitKind::Length},
       {"Specific energy E", "y + V² / 2g", "{y} + {h_v}", [](Numbers n) { return n[0] + n[1]; },
        UnitKind::Length}},
      x);
  AlternateDepth();
  Add({{"Conveyance K", "Q / √S", "{Q} / √{S}", [](Numbers n) { return n[0] / std::sqrt(n[1]); },
        UnitKind::Flow},
       {"Mean boundary shear τ", "γ R S", "{γ} × {R} × {S}", product, UnitKind::Shear},
       {"Greatest boundary shear", "γ y S", "{γ} × {y} × {S}", product, UnitKind::Shear},
       {"Section factor Z", "A √(A / T)", "{A} × √({A} / {T})",
        [](Numbers n) { return n[0] * std::sqrt(n[0] / n[1]); }, UnitKind::SectionFactor},
       {"Reynolds number Re", "V R / ν", "{V} × {R} / {ν}", [](Numbers n) { return n[0] * n[1] / n[2]; },
        UnitKind::None}},
      x);
}

/// The depth of the same specific energy on the other side of critical depth.
void WorkingWriter::AlternateDepth() {
  if (IsFull() || !record_.CriticalDepth.IsDouble()) return;
  const double Q = found_.Flow;
  const auto energy = [&](double y) {
    const double V = Q / Water(y).A;
    return y - low_ + V * V / Constants::TwoGravity;
  };
  const double E = energy(found_.Depth);
  const double yc = record_.CriticalDepth.Number();
  const double surface = IsPipe() ? std::min(low_ + E, found_.Pipe->Diameter) : low_ + E;
  // Towards the bed the energy grows without limit, towards the surface with the depth.
  const double end = found_.Depth > yc ? low_ : surface;
  const bool crossed = energy(yc) < E && (end == low_ || energy(end) >= E);
  if (!crossed || std::abs(end - yc) <= Constants::SearchTolerance) {
    Say(std::string(IsPipe() ? "No free surface in the pipe" : "No depth") +
        " beyond critical depth has the same specific energy.");
    return;
  }
  const double alternate = Trace(yc, end, E, energy).Found;
  ShownNumbers numbers = numbers_;
  SetGeometry(alternate, numbers);
  for (const char* const other : {"P", "R", "T"}) numbers.erase(other);
  if (IsSection()) {
    numbers["W"].Text = FineNumber(alternate);
    Result({"Alternate water level W_a", "level of the same E beyond W_c", Fine(alternate)});
  } else {
    numbers["y"].Text.clear();
    Result({"Alternate depth y_a", "depth of the same E beyond y_c", Fine(alternate)});
  }
  AddGeometry(numbers, "_a");
  numbers["E"] = {InUnits(energy(alternate), Units::Length)};
  if (IsSection()) {
    Add({{"E", "W* - W_min + Q² / (2 g A*²)", "{W} - {W_min} + {Q}² / (2 × {g} × {A}²)",
          [](Numbers n) { return n[0] - n[1] + VelocityHead(n[2], n[3], n[4]); }, UnitKind::Length}},
        numbers, "_a");
  } else {
    Add({{"E", "y* + Q² / (2 g A*²)", "{y} + {Q}² / (2 × {g} × {A}²)",
          [](Numbers n) { return n[0] + VelocityHead(n[1], n[2], n[3]); }, UnitKind::Length}},
        numbers, "_a");
  }
}

void WorkingWriter::WhatIf() {
  Heading("What if");
  const bool forFlow = record_.SolveForFlow;
  const std::string solved = (forFlow ? main_.lblFlow : main_.lblDepth).Caption;
  Heads({"Input", "Change", solved});
  struct Change {
    std::string Name;
    std::function<void(double by)> Apply;
  };
  const Change changes[] = {
      {IsSection() ? "every n" : "n", ScaleRoughness},
      {"S", [](double by) { Scale(ChannelState.Slope, by); }},
      {forFlow ? "y" : "Q",
       [&](double by) {
         if (forFlow) {
           ChannelState.Depth = low_ + Depth() * by;
         } else {
           Scale(ChannelState.Flow, by);
         }
       }},
  };
  for (const Change& change : changes) {
    for (const double percent : {-10.0, 10.0}) {
      const KeptRecord kept;
      std::string result = "no result";
      try {
        change.Apply(1 + percent / 100);
        if (IsSection() && forFlow && !IsBelowGround(ChannelState.Depth.Number())) {
          result = "above the section";
        } else if (SolveChannel()) {
          const EngineValue& value = forFlow ? ChannelState.Flow : ChannelState.Depth;
          if (!value.IsDouble()) {
            result = "Overflow";
          } else if (forFlow) {
            result = WithUnit(InUnits(value.Number(), Units::Flow), UnitKind::Flow);
          } else {
            result = IsSection() ? Fine(value.Number())
                                 : WithUnit(InUnits(value.Number(), Units::Length), UnitKind::Length);
          }
        }
      } catch (const EngineFault&) {
      }
      Row({change.Name, percent < 0 ? "- 10 %" : "+ 10 %", result});
    }
  }
}

void WorkingWriter::Notes() {
  Heading(NotesHeading);
  // First those that the status line only counts: they are looked for.
  for (const bool inVerdict : {false, true}) {
    for (const Note& note : main_.Notes()) {
      if (note.Phrase.empty() == inVerdict) continue;
      lines_.push_back({WorkingLine::Kind::Note,
                        {inVerdict ? FirstUpper(note.Phrase) : note.Short, note.Long, note.Source}});
    }
  }
}

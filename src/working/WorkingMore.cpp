// What the boxes do not show: other depths, further results, changed inputs, and the notes. See
// WorkingWriter.h.
#include <algorithm>
#include <cmath>

#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
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

void ScaleRoughness(double by) {
  Scale(ChannelState.ManningN, by);
  for (int row = 1; row <= ChannelState.IrregPointCount; ++row) {
    EngineValue& n = ChannelState.IrregEnginePoints[static_cast<std::size_t>(row)][3];
    if (!n.IsEmptyText()) Scale(n, by);
  }
}

}  // namespace

void WorkingWriter::OtherDepths() {
  const auto flow = [this](double cfs) { return WithUnit(InUnits(cfs, Units::Flow), UnitKind::Flow); };
  if (found_.Pipe) {
    const PipeFindings& pipe = *found_.Pipe;
    Heading("Capacity of the pipe and second depth");
    const double peak = Constants::PeakFlowDepth * pipe.Diameter;
    ShownNumbers& x = numbers_;
    x["Qfull"] = {InUnits(pipe.FullFlow, Units::Flow)};
    x["Qmax"] = {InUnits(pipe.GreatestFlow, Units::Flow)};
    x["y / D"] = {found_.Depth / pipe.Diameter};
    x["Q / Qmax"] = {found_.Flow / pipe.GreatestFlow};
    const auto ratio = [](Numbers n) { return n[0] / n[1]; };
    Add({{"Qfull", "(k / n) (π D² / 4) (D / 4)^(2/3) √S",
          "({k} / {n}) × ({π} × {D}² / 4) × ({D} / 4)^(2/3) × √{S}",
          [](Numbers n) {
            return n[0] / n[1] * (n[2] * n[3] * n[3] / 4) * std::pow(n[3] / 4, Constants::TwoThirds) *
                   std::sqrt(n[4]);
          },
          UnitKind::Flow},
         {"Qmax", "Q at y = 0.938 D", "", nullptr, UnitKind::Flow},
         {"y / D", "", "{y} / {D}", ratio, UnitKind::None},
         {"Q / Qmax", "", "{Q} / {Qmax}", ratio, UnitKind::None}},
        x);
    if (!pipe.OtherDepth) {
      Say("No second depth carries this flow: it is not between these two.");
      return;
    }
    if (*pipe.OtherDepth < pipe.Diameter) {
      Search(Trace(found_.Depth > peak ? 0 : pipe.Diameter, peak, found_.Flow,
                   [this](double y) { return Carried(y); }),
             "y2", "Q");
    }
    Say("The pipe carries the flow at the depth in the box, " + Fine(found_.Depth) +
        ", and at a second depth, " + Fine(*pipe.OtherDepth) + ".");
    Equal({"Q at the second depth", flow(Carried(*pipe.OtherDepth))});
  } else if (found_.Section) {
    const double rootLength = std::sqrt(UnitFactor(record_.UnitsEorM, Units::Length));
    WaterLevels(found_.Section->Flow, found_.Section->Shown, "carry the flow", UnitKind::Flow,
                UnitFactor(record_.UnitsEorM, Units::Flow));
    WaterLevels(found_.Section->Critical, found_.Section->CriticalShown, "are critical",
                UnitKind::SectionFactor, UnitFactor(record_.UnitsEorM, Units::Area) * rootLength);
  }
}

void WorkingWriter::WaterLevels(const LevelSearch& found, std::optional<std::size_t> shown,
                                const std::string& what, UnitKind unit, double factor) {
  Heading("Water levels that " + what);
  for (std::size_t i = 0; i < found.Levels.size(); ++i) {
    Equal({"W" + std::to_string(i + 1), Fine(found.Levels[i]) + (i == shown ? " (in the box)" : "")});
  }
  if (found.Falls.empty()) return;
  const std::string quantity = unit == UnitKind::Flow ? "Q" : "A √(A / T)";
  Say(quantity + " falls while the water rises:");
  Heads({"From", "To", quantity + " before", quantity + " after"});
  for (const FallingRange& fall : found.Falls) {
    Row({Fine(fall.From), Fine(fall.To), WithUnit(fall.Before / factor, unit),
         WithUnit(fall.After / factor, unit)});
  }
}

void WorkingWriter::MoreResults() {
  Heading("More results");
  ShownNumbers& x = numbers_;
  if (IsSection()) {
    x["Wmin"] = {InUnits(low_, Units::Length), FineNumber(low_)};
    x["y"] = {InUnits(Depth(), Units::Length)};
    Add({{"y", "W - Wmin", "{W} - {Wmin}", [](Numbers n) { return n[0] - n[1]; }, UnitKind::Length}}, x);
  }
  x["Specific energy E"] = {x["y"].Value + x["V² / 2g"].Value};
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
       {"Specific energy E", "y + V² / 2g", "{y} + {V² / 2g}", [](Numbers n) { return n[0] + n[1]; },
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
  const bool deep = found_.Depth > yc;
  const double top = IsPipe() ? std::min(low_ + E, found_.Pipe->Diameter) : low_ + E;
  double alternate = 0;
  try {
    // Towards the bed the energy grows without limit, towards the surface with the depth.
    if (deep) {
      alternate = Trace(yc, low_, E, energy).Found;
    } else if (energy(top) >= E) {
      alternate = Trace(yc, top, E, energy).Found;
    } else {
      Say("No free surface in the pipe has the same specific energy beyond critical depth.");
      return;
    }
  } catch (const EngineFault&) {
    return;  // the two depths are closer than the search can part
  }
  const std::string name = IsSection() ? "Alternate level" : "Alternate depth";
  Equal({name + ", of the same E beyond critical depth", Fine(alternate)});
  Equal({"E there", WithUnit(InUnits(energy(alternate), Units::Length), UnitKind::Length)});
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
        if (SolveChannel()) {
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
        result = "no result";
      }
      Row({change.Name, percent < 0 ? "- 10 %" : "+ 10 %", result});
    }
  }
}

void WorkingWriter::Notes() {
  Heading(NotesHeading);
  for (const Note& note : main_.Notes()) {
    Say(note.Long + " (" + note.Source + ")");
  }
}

// Uniform and critical flow: geometry, Manning's equation, and the searches with their residuals. See
// WorkingWriter.h. Notation: y depth, W water-surface elevation, A flow area, P wetted perimeter, T top
// width, Q flow.
#include <algorithm>
#include <cmath>

#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "engine/Bisection.h"
#include "engine/Constants.h"
#include "engine/ManningCircular.h"
#include "engine/ManningIrreg.h"
#include "engine/ManningTrap.h"
#include "engine/NumberText.h"
#include "engine/UniformFlow.h"
#include "working/WorkingWriter.h"

namespace {

using Numbers = std::span<const double>;

// Geometry (Chow, table 2-1), for each type in the order in which one computes it.
const Equation Rectangle[] = {
    {"A", "b y*", "{b} × {y}", [](Numbers x) { return x[0] * x[1]; }, UnitKind::Area},
    {"P", "b + 2 y*", "{b} + 2 × {y}", [](Numbers x) { return x[0] + 2 * x[1]; }, UnitKind::Length},
    {"T", "b", "{b}", [](Numbers x) { return x[0]; }, UnitKind::Length},
};
const Equation Triangle[] = {
    {"A", "(z_L + z_R) y*² / 2", "({z_L} + {z_R}) × {y}² / 2",
     [](Numbers x) { return (x[0] + x[1]) * x[2] * x[2] / 2; }, UnitKind::Area},
    {"P", "y* (√(1 + z_L²) + √(1 + z_R²))", "{y} × (√(1 + {z_L}²) + √(1 + {z_R}²))",
     [](Numbers x) { return x[0] * (std::sqrt(1 + x[1] * x[1]) + std::sqrt(1 + x[2] * x[2])); },
     UnitKind::Length},
    {"T", "(z_L + z_R) y*", "({z_L} + {z_R}) × {y}", [](Numbers x) { return (x[0] + x[1]) * x[2]; },
     UnitKind::Length},
};
const Equation Trapezoid[] = {
    {"A", "b y* + (z_L + z_R) y*² / 2", "{b} × {y} + ({z_L} + {z_R}) × {y}² / 2",
     [](Numbers x) { return x[0] * x[1] + (x[2] + x[3]) * x[1] * x[1] / 2; }, UnitKind::Area},
    {"P", "b + y* (√(1 + z_L²) + √(1 + z_R²))", "{b} + {y} × (√(1 + {z_L}²) + √(1 + {z_R}²))",
     [](Numbers x) { return x[0] + x[1] * (std::sqrt(1 + x[2] * x[2]) + std::sqrt(1 + x[3] * x[3])); },
     UnitKind::Length},
    {"T", "b + (z_L + z_R) y*", "{b} + ({z_L} + {z_R}) × {y}",
     [](Numbers x) { return x[0] + (x[1] + x[2]) * x[3]; }, UnitKind::Length},
};
const Equation Pipe[] = {
    {"θ", "2 arccos(1 - 2 y* / D)", "2 × arccos(1 - 2 × {y} / {D})",
     [](Numbers x) { return 2 * std::acos(1 - 2 * x[0] / x[1]); }, UnitKind::Angle},
    {"A", "(θ* - sin θ*) D² / 8", "({θ} - sin {θ}) × {D}² / 8",
     [](Numbers x) { return (x[0] - std::sin(x[0])) * x[1] * x[1] / 8; }, UnitKind::Area},
    {"P", "θ* D / 2", "{θ} × {D} / 2", [](Numbers x) { return x[0] * x[1] / 2; }, UnitKind::Length},
    {"T", "2 √(y* (D - y*))", "2 × √({y} × ({D} - {y}))",
     [](Numbers x) { return 2 * std::sqrt(x[0] * (x[1] - x[0])); }, UnitKind::Length},
};
const Equation FullPipe[] = {
    {"A", "π D² / 4", "{π} × {D}² / 4", [](Numbers x) { return x[0] * x[1] * x[1] / 4; }, UnitKind::Area},
    {"P", "π D", "{π} × {D}", [](Numbers x) { return x[0] * x[1]; }, UnitKind::Length},
};
const Equation Section[] = {
    {"A", "sum of A", "", nullptr, UnitKind::Area},
    {"P", "sum of P", "", nullptr, UnitKind::Length},
    {"T", "sum of T", "", nullptr, UnitKind::Length},
};
const Equation SectionAtLevel[] = {
    {"A", "area below W*", "", nullptr, UnitKind::Area},
    {"T", "width at W*", "", nullptr, UnitKind::Length},
};

struct TypeEquations {
  std::string_view Type;
  std::span<const Equation> Equations;
};
const TypeEquations Types[] = {{ChannelTypes::Rectangular, Rectangle},
                               {ChannelTypes::Triangular, Triangle},
                               {ChannelTypes::Trapezoidal, Trapezoid},
                               {ChannelTypes::Circular, Pipe},
                               {ChannelTypes::Irregular, Section}};

const Equation Radius = {"R", "A* / P*", "{A} / {P}", [](Numbers x) { return x[0] / x[1]; },
                         UnitKind::Length};
const Equation SectionFactor = {"Z", "A* √(A* / T*)", "{A} × √({A} / {T})",
                                [](Numbers x) { return x[0] * std::sqrt(x[0] / x[1]); },
                                UnitKind::SectionFactor};
const Equation Manning = {
    "Q", "(k / n) A* R*^(2/3) √S", "({k} / {n}) × {A} × {R}^(2/3) × √{S}",
    [](Numbers x) { return x[0] / x[1] * x[2] * std::pow(x[3], Constants::TwoThirds) * std::sqrt(x[4]); },
    UnitKind::Flow};

}  // namespace

WaterBelow WorkingWriter::Water(double y) const {
  if (IsSection()) {
    const PointTable& points = record_.IrregEnginePoints;
    const int count = record_.IrregPointCount;
    return {ManningIrreg::IrregArea(points, count, y), ManningIrreg::IrregWettedPerimeter(points, count, y),
            ManningIrreg::IrregTopWidth(points, count, y)};
  }
  if (IsPipe()) {
    const double D = record_.Diameter.Number();
    return {ManningCircular::CircArea(y, D), ManningCircular::CircWettedPerimeter(y, D),
            ManningCircular::CircTopWidth(y, D)};
  }
  const double b = record_.BaseWidth.Number();
  const double zL = record_.SideSlopeLeft.Number();
  const double zR = record_.SideSlopeRight.Number();
  return {ManningTrap::TrapArea(y, b, zL, zR), ManningTrap::TrapWettedPerimeter(y, b, zL, zR),
          ManningTrap::TrapTopWidth(y, b, zL, zR)};
}

double WorkingWriter::Carried(double y) const {
  const double S = record_.Slope.Number();
  if (IsSection()) return ManningIrreg::IrregFlow(record_.IrregEnginePoints, record_.IrregPointCount, y, S);
  const WaterBelow water = Water(y);
  return UniformFlow::Discharge(water.A, water.P, record_.ManningN.Number(), UniformFlow::RootOfSlope(S));
}

double WorkingWriter::SectionFactorAt(double y) const {
  const WaterBelow water = Water(y);
  return UniformFlow::SectionFactor(water.A, water.T);
}

double WorkingWriter::InSectionFactorUnits(double Z) const {
  return InUnits(Z, Units::Area) / std::sqrt(UnitFactor(record_.UnitsEorM, Units::Length));
}

SearchTrace WorkingWriter::Trace(double from, double to, double target,
                                 const std::function<double(double)>& curve) const {
  SearchTrace trace{from, to, 0, from, to, 0};
  trace.Found = LastMidpoint(from, to, target, [&](double y) {
    const double value = curve(y);
    (value < target ? trace.Low : trace.High) = y;
    ++trace.Steps;
    return value;
  });
  return trace;
}

void WorkingWriter::Search(const SearchTrace& trace, const std::string& depth, const std::string& target) {
  const auto [from, to] = std::minmax(trace.From, trace.To);
  const auto [low, high] = std::minmax(trace.Low, trace.High);
  Say("The interval in which " + target + " is halved until it is no wider than " +
      Fine(Constants::SearchTolerance) + ":");
  State({"Interval of " + depth, FineNumber(from) + " to " + Fine(to)});
  State({"Steps", std::to_string(trace.Steps)});
  State({"Last bracket", FineNumber(low, 1) + " to " + Fine(high, 1)});
  Result({depth, "the last one tried", Fine(trace.Found, 1)});
}

/// How near the last depth tried came, with the decimals that a change of the depth by the tolerance of the
/// search moves.
void WorkingWriter::Residual(const std::string& difference, double carried, double wanted,
                             double carriedAbove, UnitKind unit) {
  const double change = std::abs(carriedAbove - carried);
  const int decimals =
      change > 0 ? std::clamp(static_cast<int>(std::ceil(-std::log10(change))) + 1, 0, 14) : 6;
  const std::string minuend = FixedFormat(carried, 1, decimals).Text();
  const std::string subtrahend = FixedFormat(wanted, 1, decimals).Text();
  const double left = NumericValue(minuend).value_or(0) - NumericValue(subtrahend).value_or(0);
  State({"Residual", difference, minuend + " - " + subtrahend,
         FixedFormat(left, 1, decimals).Text() + " " + UnitText(unit)});
}

void WorkingWriter::SetGeometry(double y, ShownNumbers& numbers) const {
  const WaterBelow water = Water(y);
  const bool full = IsPipe() && y >= record_.Diameter.Number();
  numbers[IsSection() ? "W" : "y"].Value = InUnits(y, Units::Length);
  numbers["A"] = {InUnits(water.A, Units::Area)};
  numbers["P"] = {InUnits(water.P, Units::Length)};
  numbers["R"] = {InUnits(UniformFlow::HydraulicRadius(water.A, water.P), Units::Length)};
  if (!full) numbers["T"] = {InUnits(water.T, Units::Length)};
  if (IsPipe() && !full) numbers["θ"] = {2 * ManningCircular::ArcCos(1 - 2 * y / record_.Diameter.Number())};
}

/// The lines of those that the numbers hold.
void WorkingWriter::AddGeometry(const ShownNumbers& numbers, const std::string& index) {
  std::span<const Equation> equations =
      std::ranges::find(Types, std::string_view(record_.ChannelType), &TypeEquations::Type)->Equations;
  if (IsPipe() && !numbers.contains("θ")) equations = FullPipe;
  if (IsSection() && !index.empty()) equations = SectionAtLevel;
  for (const Equation& equation : equations) AddEquation(lines_, equation, numbers, index);
}

void WorkingWriter::DepthSearch() {
  numbers_["Q"].Value = InUnits(found_.Flow, Units::Flow);
  if (record_.SolveForFlow) return;
  Heading("Search for the depth");
  const double top =
      IsPipe() ? Constants::PeakFlowDepth * record_.Diameter.Number() : low_ + Constants::SearchDepth;
  FlowSearch(low_, top, IsSection() ? "W" : "y");
}

/// The search for a depth that carries the flow, from one that carries less to one that carries more.
void WorkingWriter::FlowSearch(double from, double to, const std::string& symbol) {
  const SearchTrace trace =
      Trace(from, to, found_.Flow, [this](double y) { return y > low_ ? Carried(y) : 0; });
  Search(trace, symbol, "the flow reaches Q");
  const auto flow = [this](double y) { return InUnits(Carried(y), Units::Flow); };
  Residual("Q at " + symbol + " - Q", flow(trace.Found), InUnits(found_.Flow, Units::Flow),
           flow(trace.Found + (to > from ? 1 : -1) * Constants::SearchTolerance), UnitKind::Flow);
}

void WorkingWriter::SubsectionTable() {
  const SectionGround ground(record_.IrregEnginePoints, record_.IrregPointCount);
  const WaterInterval water = ground.IntervalOf(found_.Depth);
  const double h = found_.Depth - water.Bottom;
  const double rootS = UniformFlow::RootOfSlope(found_.Slope);
  const std::string length = ", " + UnitText(UnitKind::Length);
  Say("Each n begins a subsection; K = (k / n) A R^(2/3), Q = K √S:");
  Heads({"Points", "n", "A, " + UnitText(UnitKind::Area), "P" + length, "T" + length, "R" + length,
         "K, " + UnitText(UnitKind::Flow), "Share of Q"});
  double K = 0;
  for (const Subsection& each : water.Subsections) {
    const double Q = SubsectionFlow(each, h, rootS);
    K += Q / rootS;
    const double A = each.Area(h);
    const double P = each.Perimeter(h);
    const auto cell = [&](double value, int quantity) { return WithDigits(InUnits(value, quantity), 5); };
    Row({std::to_string(each.From) + " to " + std::to_string(each.To),
         record_.IrregPoints[each.From][3].Text(), cell(A, Units::Area), cell(P, Units::Length),
         cell(each.Width(h), Units::Length), P > 0 ? cell(A / P, Units::Length) : "dry",
         cell(Q / rootS, Units::Flow), WithDigits(100 * Q / found_.Flow, 5) + " %"});
  }
  numbers_["K"] = {InUnits(K, Units::Flow)};
}

void WorkingWriter::AddManning(const ShownNumbers& numbers, const std::string& index) {
  Add({Radius, Manning}, numbers, index);
}

void WorkingWriter::AddDiameter() {
  numbers_["typed D"] = {InUnits(record_.Diameter.Number(), Units::Diameter), main_.tbDiameter.Text};
  const Equation inFeet = {"D", "", "{typed D} / 12", [](Numbers x) { return x[0] / 12; }, UnitKind::Length};
  const Equation inMetres = {"D", "", "{typed D} / 1000", [](Numbers x) { return x[0] / 1000; },
                             UnitKind::Length};
  Add({metric_ ? inMetres : inFeet}, numbers_);
}

void WorkingWriter::UniformFlow() {
  Heading("Uniform flow");
  if (IsSection()) SubsectionTable();
  if (IsPipe()) AddDiameter();
  SetGeometry(found_.Depth, numbers_);
  if (IsSection() && !record_.SolveForFlow) numbers_["W"].Text = FineNumber(found_.Depth);
  AddGeometry(numbers_);
  numbers_["V"] = {InUnits(record_.Velocity.Number(), Units::Velocity)};
  numbers_["h_v"] = {InUnits(record_.VelocityHead.Number(), Units::Length)};
  if (record_.Froude.IsDouble()) numbers_["Fr"] = {record_.Froude.Number()};
  // What the depth found carries, which the end of the search leaves beside the flow given.
  ShownNumbers carried = numbers_;
  carried["Q"] = {InUnits(Carried(found_.Depth), Units::Flow)};
  if (IsSection()) {
    Add({Radius,
         {"K", "sum of K", "", nullptr, UnitKind::Flow},
         {"Q", "K √S", "{K} × √{S}", [](Numbers x) { return x[0] * std::sqrt(x[1]); }, UnitKind::Flow}},
        carried);
  } else {
    AddManning(carried);
  }
  Add({{"V", "Q / A", "{Q} / {A}", [](Numbers x) { return x[0] / x[1]; }, UnitKind::Velocity},
       {"h_v", "V² / (2 g)", "{V}² / (2 × {g})", [](Numbers x) { return x[0] * x[0] / (2 * x[1]); },
        UnitKind::Length},
       {"Fr", "V / √(g A / T)", "{V} / √({g} × {A} / {T})",
        [](Numbers x) { return x[0] / std::sqrt(x[1] * x[2] / x[3]); }, UnitKind::None}},
      numbers_);
  if (IsFull()) Say("The pipe is full: it has no water surface, no top width and no Froude number.");
}

void WorkingWriter::CriticalFlow() {
  Heading("Critical flow");
  if (!record_.CriticalDepth.IsDouble()) {
    Say(IsPipe() ? "The critical depth is not below the crown of the pipe."
                 : "The critical depth is beyond " + Fine(Constants::DeepestResult) + ".");
    return;
  }
  ShownNumbers critical = numbers_;
  critical["Q / √g"] = {critical["Q"].Value / std::sqrt(critical["g"].Value)};
  Add({{"Q / √g", "", "{Q} / √{g}", [](Numbers x) { return x[0] / std::sqrt(x[1]); },
        UnitKind::SectionFactor}},
      critical);
  const double top = IsPipe() ? record_.Diameter.Number() : low_ + Constants::SearchDepth;
  const SearchTrace trace = Trace(low_, top, UniformFlow::CriticalSectionFactor(found_.Flow),
                                  [this](double y) { return SectionFactorAt(y); });
  Search(trace, IsSection() ? "W_c" : "y_c", "A_c √(A_c / T_c) reaches Q / √g");
  const double yc = trace.Found;
  SetGeometry(yc, critical);
  critical[IsSection() ? "W" : "y"].Text.clear();
  AddGeometry(critical, "_c");
  const auto shown = [this](double y) { return InSectionFactorUnits(SectionFactorAt(y)); };
  critical["Z"] = {shown(yc)};
  Add({SectionFactor}, critical, "_c");
  Residual("Z_c - Q / √g", shown(yc), critical["Q / √g"].Value,
           shown(yc - std::min(Constants::SearchTolerance, (yc - low_) / 2)), UnitKind::SectionFactor);
  if (!record_.CriticalSlope.IsDouble()) return;
  critical["S"] = {record_.CriticalSlope.Number()};
  Add({Radius,
       {"S", "(n Q / (k A* R*^(2/3)))²", "({n} × {Q} / ({k} × {A} × {R}^(2/3)))²",
        [](Numbers x) {
          return std::pow(x[0] * x[1] / (x[2] * x[3] * std::pow(x[4], Constants::TwoThirds)), 2);
        },
        UnitKind::Slope}},
      critical, "_c");
  if (metric_) {
    Say("The box Critical Slope shows S_c divided by " +
        PlainNumberInLocale(UnitFactor(Units::Metric, Units::Length)) + ": " +
        WithUnit(InUnits(record_.CriticalSlope.Number(), Units::Length), UnitKind::Length) + ".");
  }
}

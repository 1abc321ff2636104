// What the working begins with: the inputs as typed, and the constants. See WorkingWriter.h.
#include <cmath>

#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/ManningIrreg.h"
#include "engine/NumberText.h"
#include "print/ReportLines.h"
#include "working/Working.h"
#include "working/WorkingWriter.h"

namespace {

std::string NotANumber(const std::string& text) {
  return text.empty() ? "not given" : "no number";
}

std::string Typed(const std::string& text) {
  return NumericValue(text) ? text : NotANumber(text);
}

/// Manning's k between quantities in metres, converted by the factors of the unit table.
double MetricK() {
  return Constants::ManningK * UnitFactor(Units::Metric, Units::Area) *
         std::pow(UnitFactor(Units::Metric, Units::Length), Constants::TwoThirds) /
         UnitFactor(Units::Metric, Units::Flow);
}

struct Constant {
  const char* Symbol;
  double English, Metric;
  int EnglishDigits, MetricDigits;
  const char *EnglishUnit, *MetricUnit;
  const char* Use;
};

const Constant ConstantsInUse[] = {
    {"k", Constants::ManningK, MetricK(), 7, 7, "ft^(1/3)/s", "m^(1/3)/s", "Manning's equation"},
    {"g", Constants::Gravity, Constants::Gravity / UnitFactor(Units::Metric, Units::Length), 7, 7, "ft/s^2",
     "m/s^2", "acceleration of gravity"},
    {"π", Constants::Pi, Constants::Pi, 10, 10, "", "", "geometry of the pipe"},
    {"γ", 62.4, 9802, 3, 4, "lb/ft^3", "N/m^3", "weight of water at 60 °F"},
    {"ν", 1.217e-5, 1.131e-6, 4, 4, "ft^2/s", "m^2/s", "kinematic viscosity of water at 60 °F"},
};

}  // namespace

std::string SymbolInText(const Field& field) {
  std::string symbol = field.Symbol.Current();
  std::erase(symbol, '_');
  return symbol;
}

void AddPoints(WorkingLines& lines) {
  const std::string length = ", " + UnitText(UnitKind::Length);
  lines.push_back({WorkingLine::Kind::Head, {"Point", "Station" + length, "Elevation" + length, "n"}});
  for (int row = 1; row <= ChannelState.IrregPointCount; ++row) {
    const auto& point = ChannelState.IrregPoints[static_cast<std::size_t>(row)];
    lines.push_back({WorkingLine::Kind::Row,
                     {std::to_string(row), Typed(point[1].Text()), Typed(point[2].Text()),
                      point[3].IsEmptyText() ? "as above" : Typed(point[3].Text())}});
  }
}

WorkingLines FormWorking(const frmMain& main) {
  return WorkingWriter(main).Write();
}

WorkingWriter::WorkingWriter(const frmMain& main)
    : main_(main), record_(ChannelState), found_(main.Found()), metric_(record_.UnitsEorM == Units::Metric) {}

WorkingLines WorkingWriter::Write() {
  Given();
  if (main_.CurrentProgress.Get() != frmMain::Progress::Solved) {
    Heading("Results");
    Say(main_.WhyNone() + ".");
    return std::move(lines_);
  }
  // Beside the solution a step can leave the range of numbers where the solution itself does not.
  try {
    if (IsSection()) low_ = ManningIrreg::IrregLowPoint(record_.IrregEnginePoints, record_.IrregPointCount);
    for (const auto theme :
         {&WorkingWriter::Constants, &WorkingWriter::DepthSearch, &WorkingWriter::UniformFlow,
          &WorkingWriter::CriticalFlow, &WorkingWriter::MoreResults, &WorkingWriter::OtherDepths,
          &WorkingWriter::WhatIf}) {
      (this->*theme)();
    }
  } catch (const EngineFault& fault) {
    Say(std::string("The working ends here: ") + fault.what() + ".");
  }
  Notes();
  return std::move(lines_);
}

void WorkingWriter::Given() {
  Heading("Given");
  State({"Channel type", record_.ChannelType.empty() ? "not chosen" : record_.ChannelType});
  State({"Solved for", (record_.SolveForFlow ? main_.lblFlow : main_.lblDepth).Caption});
  for (const Field* const field : ReportInputs()) {
    if (field->IsResult()) continue;
    const std::string& text = (main_.*field->Box).Text;
    const bool isNumber = NumericValue(text).has_value();
    const std::string symbol = field->Symbol.Current();
    std::string name = (main_.*field->Name).Caption;
    if (!name.ends_with(" " + symbol)) name += " " + symbol;
    State({name, isNumber ? ReportValue(main_, *field) : NotANumber(text)});
    // The formulas take every length in the same unit.
    const bool otherUnit = field->Quantity == Units::Diameter;
    numbers_[symbol] = {InUnits((record_.*field->Cell).Number(), otherUnit ? Units::Length : field->Quantity),
                        otherUnit ? "" : text};
  }
  if (IsSection()) AddPoints(lines_);
}

void WorkingWriter::Constants() {
  Heading("Constants");
  for (const Constant& each : ConstantsInUse) {
    if (!IsPipe() && std::string_view(each.Symbol) == "π") continue;
    const double value = metric_ ? each.Metric : each.English;
    const std::string shown = WithDigits(value, metric_ ? each.MetricDigits : each.EnglishDigits);
    const std::string unit = metric_ ? each.MetricUnit : each.EnglishUnit;
    numbers_[each.Symbol] = {value, shown};
    State({each.Symbol, shown + (unit.empty() ? "" : " " + unit) + " (" + each.Use + ")"});
  }
}

double WorkingWriter::InUnits(double value, int quantity) const {
  return value / UnitFactor(record_.UnitsEorM, quantity);
}

std::string WorkingWriter::FineNumber(double feet, int moreDecimals) const {
  const int decimals = (metric_ ? 7 : 6) + moreDecimals;
  return FixedFormat(feet, 1 / UnitFactor(record_.UnitsEorM, Units::Length), decimals).Text();
}

std::string WorkingWriter::Fine(double feet, int moreDecimals) const {
  return FineNumber(feet, moreDecimals) + " " + UnitText(UnitKind::Length);
}

std::string WorkingWriter::WithUnit(double value, UnitKind unit) const {
  const std::string text = UnitText(unit);
  return WithDigits(value, 5) + (text.empty() ? "" : " " + text);
}

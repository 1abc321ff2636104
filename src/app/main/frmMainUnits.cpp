// Switching the unit system: the typed inputs are rewritten. See frmMain.h.
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "app/main/Loading.h"
#include "app/main/UnitSwitch.h"
#include "app/main/frmMain.h"

namespace {

/// Rounding that the user should know of, as a part of the number.
constexpr double NotableRounding = 0.01;

bool IsNotable(const Rewritten& number) {
  return number.Converts() &&
         std::abs(number.Number() - number.Exact()) > NotableRounding * std::abs(number.Exact());
}

/// The column of the current points; none where the first has no station.
std::vector<Rewritten> ColumnOfPoints(std::size_t column, const Rewritten& like) {
  std::vector<Rewritten> numbers;
  if (ChannelState.IrregPoints[1][1] == EngineValue("")) return numbers;
  for (std::size_t row = 1; row <= static_cast<std::size_t>(ChannelState.IrregPointCount); ++row) {
    numbers.push_back({ChannelState.IrregPoints[row][column], like.Factor, like.Decimals});
  }
  return numbers;
}

void WriteColumnOfPoints(std::size_t column, const std::vector<Rewritten>& numbers) {
  std::size_t row = 0;
  for (const Rewritten& number : numbers) ChannelState.IrregPoints[++row][column] = number.Text();
}

}  // namespace

void frmMain::SelectUnits(int units) {
  if (units == ChannelState.UnitsEorM) return;
  MarkProjectChanged();
  const int before = std::exchange(ChannelState.UnitsEorM, units);
  SetUnitsEorM();
  typed_.Texts.clear();
  ConvertInput(before);
  ForgetEdits();
  CheckInputs();
}

void frmMain::ConvertInput(int before) {
  const Loading loading(loading_);
  const int now = ChannelState.UnitsEorM;
  std::vector<std::pair<const Field*, Rewritten>> inputs;
  const auto rewritten = [&](TextBox frmMain::*box) -> Rewritten& {
    return std::ranges::find(inputs, &FieldOf(box), [](const auto& input) { return input.first; })->second;
  };
  for (const Field& field : Fields()) {
    const auto decimals = TypedDecimals(now, field.Quantity);
    if (field.Result == ResultWhen::Always || !decimals) continue;
    const double factor = UnitFactor(before, field.Quantity) / UnitFactor(now, field.Quantity);
    inputs.emplace_back(&field, Rewritten{(this->*field.Box).Text.Get(), factor, *decimals});
  }
  const Rewritten& length = rewritten(&frmMain::tbDepth);
  std::vector<Rewritten> stations = ColumnOfPoints(1, length);
  std::vector<Rewritten> elevations = ColumnOfPoints(2, length);
  UnitSwitch::KeepAscending(stations);
  if (ChannelState.SolveForFlow && CurrentChannelType().IsSurveyed()) {
    UnitSwitch::KeepBetween(rewritten(&frmMain::tbDepth), elevations);
  }
  if (ChannelState.SolveForFlow && CurrentChannelType().Is == Shape::Pipe) {
    UnitSwitch::KeepBelowCrown(rewritten(&frmMain::tbDepth), rewritten(&frmMain::tbDiameter),
                               {UnitFactor(before, Units::Length), UnitFactor(now, Units::Length),
                                UnitFactor(before, Units::Diameter), UnitFactor(now, Units::Diameter)});
  }
  // The points first: a drawing that follows the boxes shows both.
  WriteColumnOfPoints(1, stations);
  WriteColumnOfPoints(2, elevations);
  std::string moved;
  for (const auto& [field, number] : inputs) {
    if (CurrentChannelType().AsksFor(*field) && IsNotable(number)) {
      moved += (moved.empty() ? "" : ", ") + std::string(field->Caption.Current());
    }
    (this->*field->Box).Rewrite(number.Text().Text());
  }
  if (!moved.empty()) status_.Set(StatusLine::Moved, "Rounded by more than 1 %: " + moved);
}

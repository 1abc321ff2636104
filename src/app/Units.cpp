// See Units.h.
#include "app/Units.h"

#include <array>
#include <utility>

namespace {

struct Unit {
  const char* Label = "";
  double Factor;
  std::optional<int> Decimals = {};
};

constexpr std::array<std::array<Unit, 9>, 3> UnitTable = {{
    {{{},
      {"ft", 1, 2},
      {"cfs", 1, 1},
      {"ft/ft", 1},
      {"in", 1.0 / 12, 1},
      {"sf", 1},
      {"fps", 1},
      {"ft", 1, 2},
      {"", 1}}},
    {{{},
      {"m", 3.28084, 3},
      {"m^3/s", 35.31467, 3},
      {"m/m", 1},
      {"mm", 0.00328084, 0},
      {"m^2", 10.76391},
      {"m/s", 3.28084},
      {"m", 3.28084, 3},
      {"", 1}}},
    {},
}};

const Unit& At(int units, int row) {
  return UnitTable.at(static_cast<std::size_t>(units)).at(static_cast<std::size_t>(row));
}

}  // namespace

std::string UnitLabel(int units, int row) {
  return At(units, row).Label;
}

double UnitFactor(int units, int row) {
  return At(units, row).Factor;
}

std::optional<int> TypedDecimals(int units, int row) {
  return At(units, row).Decimals;
}

std::string WithRaisedExponents(std::string text) {
  for (const auto& [plain, raised] : {std::pair{"m^2", "m\u00B2"}, std::pair{"m^3", "m\u00B3"}}) {
    for (std::size_t at = text.find(plain); at != std::string::npos; at = text.find(plain, at))
      text.replace(at, 3, raised);
  }
  return text;
}

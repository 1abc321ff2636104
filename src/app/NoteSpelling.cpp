// See NoteSpelling.h.
#include "app/NoteSpelling.h"

#include <cmath>

#include "app/Declarations.h"
#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "engine/NumberText.h"

namespace {

constexpr int DigitsOfSentences = 4;

int QuantityOf(Cell cell) {
  if (cell == &ChannelRecord::Area) return Units::Area;
  if (cell == &ChannelRecord::Velocity) return Units::Velocity;
  return cell == &ChannelRecord::Froude ? Units::Dimensionless : Units::Length;
}

}  // namespace

std::string NoteSpelling::Length(double feet) const {
  const std::string fixed = ShownNumber(feet, Units::Length, true);
  // Fixed decimals would show a thin layer of water as none.
  const bool vanishes = feet != 0 && LeadingNumber(fixed) == 0;
  return WithUnit(vanishes ? ShownNumber(feet, Units::Length, false) : fixed, Units::Length);
}

std::string NoteSpelling::Flow(double cfs) const {
  return WithUnit(ShownNumber(cfs, Units::Flow, false), Units::Flow);
}

std::string NoteSpelling::Number(double x) const {
  return SigFormat(x, 1, DigitsOfSentences).Text();
}

double NoteSpelling::LastPlace(Cell quantity, double value) const {
  const double factor = UnitFactor(ChannelState.UnitsEorM, QuantityOf(quantity));
  const double magnitude = std::floor(std::log10(std::abs(value / factor)));
  return std::pow(10.0, magnitude - Declarations::SigDigs + 1) * factor;
}

// See RatingColumn.h.
#include "rating/RatingColumn.h"

#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "engine/EngineFault.h"

namespace {

constexpr RatingColumns Columns = {{
    {},
    {"Flow, ", Units::Flow, &ChannelRecord::Flow},
    {"Depth, ", Units::Length, &ChannelRecord::Depth, true},
    {"Slope, ", Units::Slope, &ChannelRecord::Slope},
    {"n", Units::Dimensionless, &ChannelRecord::ManningN},
    {"B.Width, ", Units::BaseWidth, &ChannelRecord::BaseWidth},
    {"Vel., ", Units::Velocity, &ChannelRecord::Velocity},
    {"Vel.H., ", Units::Length, &ChannelRecord::VelocityHead},
    {"Area, ", Units::Area, &ChannelRecord::Area},
    {"WP, ", Units::Length, &ChannelRecord::WettedPerimeter},
    {"H.Rad., ", Units::Length, &ChannelRecord::HydraulicRadius},
    {"Top W., ", Units::Length, &ChannelRecord::TopWidth},
    {"Froude#", Units::Dimensionless, &ChannelRecord::Froude},
    {"Crit.D., ", Units::Length, &ChannelRecord::CriticalDepth, true},
    {"Crit.S., ", Units::Slope, &ChannelRecord::CriticalSlope},
}};

}  // namespace

RatingColumns CurrentRatingColumns() {
  RatingColumns columns = Columns;
  if (ChannelState.ChannelType == ChannelTypes::Circular) {
    columns[5] = {"Dia., ", Units::Diameter, &ChannelRecord::Diameter};
  } else if (ChannelState.ChannelType == ChannelTypes::Irregular) {
    columns[2].Caption = "WSEL, ";
    columns[5] = {"Irr.Geom."};
    columns[14] = {};
  }
  return columns;
}

std::string RatingColumn::Header() const {
  return Cell == nullptr ? Caption : Caption + UnitLabel(ChannelState.UnitsEorM, Quantity);
}

std::string RatingColumn::Text() const {
  return Cell == nullptr ? "-" : ShownNumber(ChannelState.*Cell, Quantity, FixedDecimals);
}

std::optional<double> RatingColumn::Number() const {
  if (Cell == nullptr || !(ChannelState.*Cell).IsNumeric()) return std::nullopt;
  return Finite((ChannelState.*Cell).Number() / UnitFactor(ChannelState.UnitsEorM, Quantity));
}

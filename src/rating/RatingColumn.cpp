// See RatingColumn.h.
#include "rating/RatingColumn.h"

#include <algorithm>

#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "engine/EngineFault.h"

RatingColumns CurrentRatingColumns() {
  const ChannelType& type = CurrentChannelType();
  RatingColumns columns;
  for (const Field& field : Fields()) {
    if (field.RatingColumn == 0) continue;
    const auto place = static_cast<std::size_t>(field.RatingColumn);
    columns.resize(std::max(columns.size(), place + 1));
    RatingColumn& column = columns[place];
    if (type.Has(field)) {
      column = {field.RatingHead.Current(), field.PageQuantity, field.Cell, field.FixedDecimals};
    } else if (field.HeadWithout != nullptr && *column.Caption == '\0') {
      column = {field.HeadWithout};
    }
  }
  return columns;
}

std::string RatingColumn::Header() const {
  return Cell == nullptr ? Caption : Caption + UnitLabel(ChannelState.UnitsEorM, Quantity);
}

std::string RatingColumn::NameAndValue(const std::string& value) const {
  std::string text = Header();
  const std::size_t comma = text.find(", ");
  return comma == std::string::npos ? text + ' ' + value : text.replace(comma, 1, ' ' + value);
}

std::string RatingColumn::Text() const {
  return Cell == nullptr ? "-" : ShownNumber(ChannelState.*Cell, Quantity, FixedDecimals);
}

std::optional<double> RatingColumn::Number() const {
  if (Cell == nullptr || !(ChannelState.*Cell).IsNumeric()) return std::nullopt;
  return Finite((ChannelState.*Cell).Number() / UnitFactor(ChannelState.UnitsEorM, Quantity));
}

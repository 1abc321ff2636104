// The columns that rating graph and rating table share: an input or a result of the problem record each.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engine/ChannelState.h"

struct RatingColumn {
  const char* Caption = "";
  int Quantity = 0;                            ///< its row of the unit table
  EngineValue ChannelRecord::*Cell = nullptr;  ///< null: the channel type has no such value
  bool FixedDecimals = false;                  ///< a depth or an elevation

  /// Caption and unit; of a column without values the caption alone.
  std::string Header() const;
  /// Caption, this value and unit: "Depth 1.250 m".
  std::string NameAndValue(const std::string& value) const;
  /// The record's value as the table shows it; "-" where there are no values. EngineFault when the value is
  /// too large for the unit.
  std::string Text() const;
  /// The record's value in the unit on display, unrounded; nothing when it is not numeric. EngineFault as
  /// above.
  std::optional<double> Number() const;
};

/// The columns for the current channel type. Column 0 is the narrow empty one in front.
using RatingColumns = std::vector<RatingColumn>;
RatingColumns CurrentRatingColumns();

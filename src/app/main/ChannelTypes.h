// The channel types, a row each: what the windows ask, show, print and vary for them.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "app/main/Fields.h"

/// The kind of a cross-section.
enum class Shape { Prism, Pipe, Survey };

/// How a channel type uses an input or a result.
enum class Use {
  None,   ///< has no such value: hidden, neither checked nor printed nor varied
  Zero,   ///< has the value 0: shown but not asked for
  Asked,  ///< shown, checked, printed and varied
};

struct ChannelType {
  std::string_view Name = {};  ///< in menus and files
  MenuItem frmMain::*Item = nullptr;
  const char* Mnemonic = "";
  Shape Is = Shape::Prism;
  std::array<TextBox frmMain::*, 8> Asked = {}, Zero = {};
  std::array<TextBox frmMain::*, 1> NoResult = {};

  bool IsSurveyed() const { return Is == Shape::Survey; }
  Use UseOf(const Field& field) const;
  bool Has(const Field& field) const { return UseOf(field) != Use::None; }
  /// The user types it in the mode in force.
  bool AsksFor(const Field& field) const { return field.IsInput() && UseOf(field) == Use::Asked; }
};

/// In the order of the menu.
std::span<const ChannelType> AllChannelTypes();

/// The row of the current channel type; a row without a name and without any value for an unknown one.
const ChannelType& CurrentChannelType();

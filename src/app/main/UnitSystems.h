// The unit systems that the user can choose, a row each; their units and factors are in app/Units.
#pragma once

#include <span>

#include "platform/Controls.h"

class frmMain;

struct UnitSystem {
  int Units = 0;  ///< as the problem record holds it
  MenuItem frmMain::*Item = nullptr;
  const char* Caption = "";
  const char* Mnemonic = "";
};

/// In the order of the menu.
std::span<const UnitSystem> AllUnitSystems();

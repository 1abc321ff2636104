// The inputs and results of a problem, a row each: what every window, page and file needs to know of them.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "app/FormStuff.h"
#include "app/Units.h"
#include "app/main/TypedUnits.h"
#include "engine/ChannelState.h"
#include "platform/Controls.h"

class frmMain;

/// A text, and the one in its place for a surveyed section, whose depths are water-surface elevations.
struct Wording {
  const char* Usual = "";
  const char* Surveyed = Usual;
  /// The one for the current channel type.
  const char* Current() const;
};

/// When the program writes a box; in the other mode the user does.
enum class ResultWhen { Never, SolvedForFlow, SolvedForDepth, Always };

/// A button that picks the number of a box from a list.
struct Picker {
  Button frmMain::*Press = nullptr;
  const char* Mnemonic = "";
};

/// A switch beside a box that makes it the result.
struct SolveSwitch {
  ToolButton frmMain::*Press = nullptr;
  MenuItem frmMain::*Command = nullptr;  ///< that it runs
};

struct Field {
  Label frmMain::*Name = nullptr;
  TextBox frmMain::*Box = nullptr;
  Label frmMain::*Unit = nullptr;  ///< null: the number has no unit, but for `Suffix`
  Wording Caption = {};
  Wording Symbol = {};
  const char* Mnemonic = "";  ///< candidates, unique in the window; a result has none
  const char* Suffix = "";    ///< follows the number without a blank, on screen and paper
  Picker Choose = {};
  SolveSwitch Solve = {};

  EngineValue ChannelRecord::*Cell = nullptr;
  int Quantity = Units::Dimensionless;               ///< row of the unit table for the box
  int PageQuantity = Quantity;                       ///< and on pages, in rating tables and graphs
  TypedUnits::Kind Typed = TypedUnits::Kind::Plain;  ///< the units that may be typed behind the number
  bool FixedDecimals = false;                        ///< shown with decimals, not with significant digits
  bool KeptByNew = false;                            ///< New leaves the text in the box
  ResultWhen Result = ResultWhen::Never;

  int FileItem = -1;     ///< place among the inputs of a project file
  int ReportLine = -1;   ///< place among the inputs of the report
  int RatingColumn = 0;  ///< place in rating tables; 0: none

  FormStuff::Range Bounds = {};  ///< of an input
  /// What is wrong with the text as a water-surface elevation; null: `Bounds` hold for it too.
  std::string (*SurveyedOffence)(const std::string& typed) = nullptr;

  const char* ListName = nullptr;  ///< in the lists of what to vary and to plot; null: in neither
  Wording RatingHead = {};
  /// Head of the column where the channel type has no such value; null: another field takes the column.
  const char* HeadWithout = nullptr;
  FormStuff::Range RatedBounds = Bounds;  ///< of the input while it is varied
  /// The range that a rating dialog offers, in the unit on display; where absent from 0, or the lowest point
  /// of a section, to the number typed.
  std::optional<double> FirstOffered = {}, LastOffered = {};

  /// In the mode in force the program writes the box.
  bool IsResult() const;
  bool IsInput() const { return !IsResult(); }
  /// A rating series can vary it.
  bool CanVary() const { return ListName != nullptr && Result != ResultWhen::Always; }
  /// A water-surface elevation is asked for in its place.
  bool IsElevation() const;
};

/// Inputs, then results, in the order of the main window.
std::span<const Field> Fields();

/// The row of a box; the box must have one.
const Field& FieldOf(TextBox frmMain::*box);

// The varied input and its range, as the settings dialogs and the window of the rating graph ask for them.
#pragma once

#include <string>
#include <vector>

#include "app/Declarations.h"
#include "engine/EngineValue.h"
#include "platform/Controls.h"

struct Field;

class RangeControls {
 public:
  Label Label1, Label2;
  ComboBox cbxVary;
  TextBox tbMin, tbMax;
  ControlArray<Label, 0, 1> lblunits;
  /// What cannot be used, or how far the range goes.
  Label lblRange;

  virtual ~RangeControls() = default;
  RangeControls(const RangeControls&) = delete;
  RangeControls& operator=(const RangeControls&) = delete;

 protected:
  explicit RangeControls(Form* form);

  /// Lists the inputs that the channel type lets vary and chooses the one in force with its range; none where
  /// it is not among them.
  void ShowRangeInForce();
  /// The input chosen; null: none.
  const Field* Varied() const;
  /// Shows the range and the unit proposed for the input chosen.
  void Propose();
  /// The input chosen with the ends typed; the rest is that of the range in force.
  RatingRangeRecord TypedRange() const;

  /// Marks the ends that cannot be used; true when both can.
  bool MarkEnds();
  /// Reports a paste that is too long in the same place.
  void RefuseLongTexts(TextBox& box);
  /// Of the boxes that are checked; empty when all can be used.
  std::string FirstOffence() const;
  std::vector<TextBox*> checked_{&tbMin, &tbMax};

  /// The number in a box in feet and seconds.
  double Internal(const TextBox& box) const;
  /// A value of the varied input as the boxes show it, from feet and seconds.
  std::string Shown(const EngineValue& value) const;
  /// Likewise, but with all digits that the user may have typed.
  std::string ShownWhole(double value) const;
  /// The varied input is shown with decimals.
  bool HasFixedDecimals() const;

 private:
  std::string LastOffence() const;

  std::vector<const Field*> inputs_;  // each line of cbxVary
  int varyCode_ = 0;
};

/// A value from feet and seconds in the unit of this quantity: as it is shown, or with up to seven digits
/// where those in force are too few.
std::string WholeNumber(double value, int quantity, bool fixedDecimals);

/// The inputs that the channel type lets vary; the quantity solved for is none of them.
std::vector<const Field*> VariableInputs();

// What the settings dialogs of rating graph and rating table have in common: which input is varied, and over
// which range.
#pragma once

#include <string>
#include <vector>

#include "app/Declarations.h"
#include "engine/EngineValue.h"
#include "platform/Controls.h"

struct Field;

class RangeSettings : public Form {
 public:
  Label lblSolveFor{this, "lblSolveFor"};
  Label Frame1{this, "Frame1"}, Label1{this, "Label1"}, Label2{this, "Label2"};
  ComboBox cbxVary{this, "cbxVary"};
  TextBox tbMin{this, "tbMin"}, tbMax{this, "tbMax"};
  ControlArray<Label, 0, 1> lblunits{this, "lblunits"};
  Button cmdOK{this, "cmdOK"}, cmdCancel{this, "cmdCancel"};

  /// Proposes a range for the input chosen.
  virtual void cbxVary_Click();
  virtual void cmdOK_Click();
  void cmdCancel_Click();

 protected:
  explicit RangeSettings(std::string name);
  void Form_Load() override;
  /// Without OK everything but the answer itself is as before.
  bool Form_QueryUnload() override;

  /// Marks what cannot be used and enables OK when nothing is.
  void EnableOK();
  /// The same for the step, where the dialog asks for one; true when it can be used.
  virtual bool MarkStep() { return true; }
  /// Puts the offence on the box, as its tool tip and tint; true when it is empty.
  static bool Mark(TextBox& box, const std::string& offence);

  /// Tells a paste that is too long in the same place.
  static void RefuseLongTexts(TextBox& box);

  /// The number in a box in feet and seconds.
  static double Internal(const TextBox& box);
  /// A value of the varied input as the boxes show it, from feet and seconds.
  static std::string Shown(const EngineValue& value);
  /// The varied input is shown with decimals.
  static bool HasFixedDecimals();

 private:
  /// The range of another input: no undo brings back what was typed for the one before.
  void ProposeRange();
  std::string LastOffence() const;

  std::vector<const Field*> inputs_;  // each line of cbxVary
  RatingRangeRecord before_;          // the range in force when the dialog opened
  bool accepted_ = false;
};

// What the settings dialogs of rating graph and rating table have in common: the varied input and its range,
// proposed or last used, and OK.
#pragma once

#include <optional>
#include <string>

#include "app/LastUsed.h"
#include "rating/RangeControls.h"

class RangeSettings : public Form, public RangeControls {
 public:
  Label lblSolveFor{this, "lblSolveFor"};
  Label Frame1{this, "Frame1"};
  /// Takes the range last used for the input chosen; hidden while there is none.
  Button cmdLastUsed{this, "cmdLastUsed"};
  Button cmdOK{this, "cmdOK"}, cmdCancel{this, "cmdCancel"};

  /// Proposes a range for the input chosen.
  virtual void cbxVary_Click();
  virtual void cmdLastUsed_Click();
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
  /// The step typed, in feet and seconds; nothing where the dialog asks for none.
  virtual std::optional<double> TypedStep() const { return std::nullopt; }
  /// How far a range that can be used goes.
  virtual std::string Extent() const = 0;
  /// Null: none was used yet.
  const UsedRange* UsedForInput() const;

 private:
  /// The range of another input: no undo brings back what was typed for the one before.
  void ProposeRange();
  void OfferLastUsed();

  RatingRangeRecord before_;  // the range in force when the dialog opened
  bool accepted_ = false;
};

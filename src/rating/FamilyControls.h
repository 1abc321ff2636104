// A family of curves for the rating graph: one more input, with a few values.
#pragma once

#include <string>
#include <vector>

#include "platform/Controls.h"

struct Field;
class frmMain;

class FamilyControls {
 public:
  Label lblFamily, lblValues, lblFamilyUnit;
  ComboBox cbxFamily;
  /// The values, with ';' between.
  TextBox tbFamily;

  virtual ~FamilyControls() = default;
  FamilyControls(const FamilyControls&) = delete;
  FamilyControls& operator=(const FamilyControls&) = delete;

 protected:
  explicit FamilyControls(Form* form);

  /// Lists the inputs beside the varied one. The one chosen stays, unless it is varied now.
  void ListFamilies(const Field* varied);
  /// The input chosen; null: no family.
  const Field* FamilyInput() const;
  /// Shows the values last used for the input chosen, or some around the number in the main window.
  void ProposeFamily(const frmMain& main);

  struct Member {
    double Value = 0;   ///< in feet and seconds
    std::string Label;  ///< "n = 0.013", its number as typed
  };
  struct Family {
    const Field* Input = nullptr;
    std::vector<Member> Members;
    std::string Present;  ///< the label of the problem in the main window
  };
  /// Of values that FamilyOffence does not refuse.
  Family TypedFamily(const frmMain& main) const;
  /// What is wrong with the values; empty when they can be used.
  std::string FamilyOffence() const;
  static constexpr int MostMembers = 6;

 private:
  std::vector<const Field*> inputs_;  // the lines behind the first, "None"
};

// The dialog in which a survey becomes the points of the table: what was read, how it was understood, and
// what was changed and why.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/Controls.h"
#include "platform/FlexGrid.h"
#include "platform/XYChart.h"
#include "section/Import.h"

class frmImport : public Form {
 public:
  /// The import must live as long as the dialog.
  explicit frmImport(Survey::Import& import);

  Label lblRead{this, "lblRead"};
  FlexGrid MSFlexGrid1{this, "MSFlexGrid1"};
  Label lblSection{this, "lblSection"}, lblSeparator{this, "lblSeparator"}, lblSign{this, "lblSign"},
      lblStation{this, "lblStation"}, lblElevation{this, "lblElevation"}, lblRoughness{this, "lblRoughness"},
      lblUnit{this, "lblUnit"};
  ComboBox cbxSection{this, "cbxSection"}, cbxSeparator{this, "cbxSeparator"}, cbxSign{this, "cbxSign"},
      cbxStation{this, "cbxStation"}, cbxElevation{this, "cbxElevation"}, cbxRoughness{this, "cbxRoughness"},
      cbxUnit{this, "cbxUnit"};
  Label lblFrontN{this, "lblFrontN"};
  TextBox tbFrontN{this, "tbFrontN"};
  XYChart MSChart1{this, "MSChart1"};
  Label lblChanges{this, "lblChanges"};
  /// One for each step of mending, in their order; those with nothing to mend are hidden.
  ControlArray<CheckBox, 0, Survey::KindCount - 1> chkChange{this, "chkChange"};
  ControlArray<Label, 0, Survey::KindCount - 1> lblChange{this, "lblChange"};
  Label lblNotes{this, "lblNotes"};
  Label lblReason{this, "lblReason"};
  Button cmdOK{this, "cmdOK"}, cmdCancel{this, "cmdCancel"};

  void cbxSection_Click();
  void cbxSeparator_Click();
  void cbxSign_Click();
  void cbxUnit_Click();
  /// One of the lists of columns: the other two give up the column that it takes.
  void Column_Click(Survey::Role role);
  void tbFrontN_Change();
  void chkChange_Click(int index);
  void cmdOK_Click();
  void cmdCancel_Click();

  /// True when the dialog was left by OK: the points are to be taken over.
  bool Accepted() const { return accepted_; }

 protected:
  void Form_Load() override;

 private:
  struct RoleList {
    Survey::Role Role;
    ComboBox& List;
    Label& Caption;
  };
  std::array<RoleList, 3> RoleLists();

  /// The whole dialog as the import stands.
  void ShowAll();
  void ShowRead();
  void ShowChoices();
  void ShowChanges();
  void ShowDrawing();
  void ShowUnits();
  /// Fills a list, or hides it with its caption where there is nothing to choose.
  static void Fill(ComboBox& list, Label& caption, std::vector<std::string> items, int chosen);
  std::string ColumnName(std::size_t column) const;

  Survey::Import& import_;
  bool showing_ = false;  // the lists are being filled: their events are not the user's
  bool accepted_ = false;
};

// The rating table: one row for each point of a rating series.
#pragma once

#include "platform/FlexGrid.h"
#include "rating/RatingWindow.h"
#include "rating/TableText.h"

class frmTable : public RatingWindow {
 public:
  explicit frmTable(const frmMain& main);

  FlexGrid MSFlexGrid1{this, "MSFlexGrid1"};
  /// Columns with one value in all rows are neither shown nor copied, printed or exported.
  MenuItem mnuViewHideConstant{this, "mnuViewHideConstant"};
  /// The columns that are hidden, each with its value.
  Label lblHidden{this, "lblHidden"};

  /// Fills the grid with the series. False when the user cancels: the rows stay.
  bool LoadTable();

  void mnuPrint_Click() override;
  void mnuPrintPreview_Click() override;
  void mnuFileExport_Click() override;
  /// The selected block, headed by the captions of its columns.
  void mnuEditCopy_Click() override;
  void mnuViewHideConstant_Click();

 protected:
  bool LoadSeries() override;
  void ShowSettings() override;

 private:
  using Grid = std::vector<std::vector<std::string>>;
  /// Takes the columns out of these rows of texts and numbers, and names them in lblHidden.
  void HideConstants(RatingColumns& columns, Grid& rows, std::vector<RatingNumbers>& numbers);

  RatingColumns columns_;               // that are shown
  std::vector<RatingNumbers> numbers_;  // of the rows, unrounded
};

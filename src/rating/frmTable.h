// The rating table: one row for each point of a rating series.
#pragma once

#include "platform/FlexGrid.h"
#include "rating/RatingWindow.h"
#include "rating/TableText.h"

class frmTable : public RatingWindow {
 public:
  explicit frmTable(const frmMain& main);

  FlexGrid MSFlexGrid1{this, "MSFlexGrid1"};

  /// Fills the grid with the series. False when the person cancels: the rows stay.
  bool LoadTable();

  void mnuPrint_Click() override;
  void mnuPrintPreview_Click() override;
  void mnuFileExport_Click() override;
  /// The selected block, headed by the captions of its columns.
  void mnuEditCopy_Click() override;

 protected:
  bool LoadSeries() override;
  void ShowSettings() override;

 private:
  std::vector<RatingNumbers> numbers_;  // of the rows, unrounded
};

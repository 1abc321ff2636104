// The rating table: one row for each point of a rating series.
#pragma once

#include "app/Declarations.h"
#include "platform/FlexGrid.h"
#include "rating/RatingWindow.h"

class frmTable : public RatingWindow {
 public:
  explicit frmTable(const frmMain& main);

  FlexGrid MSFlexGrid1{this, "MSFlexGrid1"};

  void LoadTable();

  void mnuPrint_Click() override;
  void mnuPrintPreview_Click() override;
  void mnuFileExport_Click() override;
  /// The selected block, headed by the captions of its columns.
  void mnuEditCopy_Click() override;

 protected:
  void LoadSeries() override;
  void ShowSettings() override;

 private:
  RatingRangeRecord
      shown_;  // the range of the rows on display: a cancelled settings dialog may leave another
};

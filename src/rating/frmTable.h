// The rating table: one row for each point of a rating series.
#pragma once

#include "app/Declarations.h"
#include "app/frmMain.h"
#include "platform/FlexGrid.h"

class frmTable : public Form {
 public:
  explicit frmTable(const frmMain& main);

  FlexGrid MSFlexGrid1{this, "MSFlexGrid1"};
  MenuItem mnuPrint{this, "mnuPrint"}, mnuPrintPreview{this, "mnuPrintPreview"};
  MenuItem mnuFileExport{this, "mnuFileExport"}, mnuFileExit{this, "mnuFileExit"};
  MenuItem mnuEditCopy{this, "mnuEditCopy"}, mnuEditSettings{this, "mnuEditSettings"};

  void LoadTable();

  void mnuPrint_Click();
  void mnuPrintPreview_Click();
  void mnuFileExport_Click();
  void mnuFileExit_Click();
  /// The selected block, headed by the captions of its columns.
  void mnuEditCopy_Click();
  void mnuEditSettings_Click();

 protected:
  void Form_Load() override;

 private:
  const frmMain& main_;
  RatingRangeRecord
      shown_;  // the range of the rows on display: a cancelled settings dialog may leave another
};

// The rating graph: one result of the problem plotted against the varied input.
#pragma once

#include "app/frmMain.h"
#include "platform/XYChart.h"

class frmGraph : public Form {
 public:
  explicit frmGraph(const frmMain& main);

  XYChart MSChart1{this, "MSChart1"};
  /// Says what the marked stretches of the chart are; hidden when there are none.
  Label lblMarked{this, "lblMarked"};
  MenuItem mnuPrint{this, "mnuPrint"}, mnuPrintPreview{this, "mnuPrintPreview"};
  MenuItem mnuFileExport{this, "mnuFileExport"}, mnuFileExit{this, "mnuFileExit"};
  MenuItem mnuEditCopy{this, "mnuEditCopy"}, mnuEditSettings{this, "mnuEditSettings"};

  /// Plots the series; where the flow falls as the level rises the chart's rows are marked.
  void LoadGraph();

  void mnuPrint_Click();
  void mnuPrintPreview_Click();
  void mnuFileExport_Click();
  void mnuFileExit_Click();
  void mnuEditCopy_Click();
  void mnuEditSettings_Click();

 protected:
  void Form_Load() override;

 private:
  const frmMain& main_;
};

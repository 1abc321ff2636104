// The rating graph: one result of the problem plotted against the varied input.
#pragma once

#include "platform/XYChart.h"
#include "rating/RatingWindow.h"

class frmGraph : public RatingWindow {
 public:
  explicit frmGraph(const frmMain& main);

  XYChart MSChart1{this, "MSChart1"};
  /// Says what the marked stretches of the chart are; hidden when there are none.
  Label lblMarked{this, "lblMarked"};

  /// Plots the series; where the flow falls as the level rises the chart's rows are marked. False when the
  /// person cancels: the chart stays.
  bool LoadGraph();

  void mnuPrint_Click() override;
  void mnuPrintPreview_Click() override;
  void mnuFileExport_Click() override;
  void mnuEditCopy_Click() override;

 protected:
  bool LoadSeries() override;
  void ShowSettings() override;
};

// The rating graph: one result of the problem plotted against the varied input.
#pragma once

#include "platform/XYChart.h"
#include "rating/FamilyControls.h"
#include "rating/RangeControls.h"
#include "rating/RatingCurve.h"
#include "rating/RatingWindow.h"

class frmGraph : public RatingWindow, public RangeControls, public FamilyControls {
 public:
  explicit frmGraph(const frmMain& main);

  XYChart MSChart1{this, "MSChart1"};
  /// Says what the marked spans of the chart are; hidden when there are none.
  Label lblMarked{this, "lblMarked"};

  // What the settings ask for too, in force at once where it can be used.
  Label lblPlot{this, "lblPlot"}, lblVary{this, "lblVary"};
  ComboBox cbxY{this, "cbxY"};
  MenuItem mnuViewSwap{this, "mnuViewSwap"};

  /// Plots the series; where the flow falls as the level rises the chart's rows are marked. False when the
  /// user cancels: the chart stays.
  bool LoadGraph();

  void mnuPrint_Click() override;
  void mnuPrintPreview_Click() override;
  void mnuFileExport_Click() override;
  void mnuEditCopy_Click() override;
  void mnuViewSwap_Click();

 protected:
  bool LoadSeries() override;
  void ShowSettings() override;

 private:
  void cbxVary_Click();
  void cbxFamily_Click();
  /// Draws what lists and boxes say now. Where a box cannot be used it is marked, and the last graph stays.
  void Redraw();
  /// Shows the range in force in lists and boxes.
  void ShowChoices();
  /// Takes the values typed where they can be used.
  void TakeFamily();
  void RememberRange(const RatingRangeRecord& before) const;
  void RememberFamily() const;

  Family family_;         // that is drawn
  bool filling_ = false;  // lists and boxes are being filled: nothing is drawn
};

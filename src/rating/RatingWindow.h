// What the windows of a rating curve share: they show the series of the range in force, print it, export it,
// and let the range be set anew.
#pragma once

#include "app/main/frmMain.h"

class RatingWindow : public Form {
 public:
  MenuItem mnuPrint{this, "mnuPrint"}, mnuPrintPreview{this, "mnuPrintPreview"};
  MenuItem mnuFileExport{this, "mnuFileExport"}, mnuFileExit{this, "mnuFileExit"};
  MenuItem mnuEditCopy{this, "mnuEditCopy"}, mnuEditSettings{this, "mnuEditSettings"};

  /// How many points of the series have no result, and why; hidden when nothing is shown at all.
  Label lblMissing{this, "lblMissing"};

  virtual void mnuPrint_Click() = 0;
  virtual void mnuPrintPreview_Click() = 0;
  virtual void mnuFileExport_Click() = 0;
  void mnuFileExit_Click();
  virtual void mnuEditCopy_Click() = 0;
  void mnuEditSettings_Click();

 protected:
  RatingWindow(std::string name, const frmMain& main);
  void Form_Load() override;
  /// Runs the series and shows it. False when the user cancels it: what is shown stays.
  virtual bool LoadSeries() = 0;
  void ShowMissing(const std::string& text, bool somethingShown);
  /// Opens the settings dialog; returns when it is closed.
  virtual void ShowSettings() = 0;

  const frmMain& main_;
};

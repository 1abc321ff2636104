// See RatingWindow.h.
#include "rating/RatingWindow.h"

#include "app/Declarations.h"
#include "engine/ChannelState.h"

RatingWindow::RatingWindow(std::string name, const frmMain& main) : Form(std::move(name)), main_(main) {
  mnuPrint.Caption = "Print...";
  mnuPrintPreview.Caption = "Print Preview...";
  mnuFileExport.Caption = "Export...";
  mnuFileExit.Caption = "Exit";
  mnuEditCopy.Caption = "Copy";
  mnuEditSettings.Caption = "Settings...";
  mnuPrint.Click = [this] { mnuPrint_Click(); };
  mnuPrintPreview.Click = [this] { mnuPrintPreview_Click(); };
  mnuFileExport.Click = [this] { mnuFileExport_Click(); };
  mnuFileExit.Click = [this] { mnuFileExit_Click(); };
  mnuEditCopy.Click = [this] { mnuEditCopy_Click(); };
  mnuEditSettings.Click = [this] { mnuEditSettings_Click(); };
}

void RatingWindow::Form_Load() {
  Caption = std::string(Declarations::AppTitle) + " - " + ChannelState.ChannelType;
  if (!LoadSeries()) Unload();
}

void RatingWindow::ShowMissing(const std::string& text, bool somethingShown) {
  lblMissing.Caption = text;
  lblMissing.Visible = somethingShown && !text.empty();
}

void RatingWindow::mnuEditSettings_Click() {
  const RatingRangeRecord shown = RatingRange;
  ShowSettings();
  if (!RatingRange.RatingCancelled && !LoadSeries()) RatingRange.GoBackTo(shown);
}

void RatingWindow::mnuFileExit_Click() {
  Unload();
}

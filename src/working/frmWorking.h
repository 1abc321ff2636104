// The working beside the main window: the lines behind the present answer, formed anew at every keystroke.
#pragma once

#include "app/main/frmMain.h"
#include "working/WorkingLine.h"

class frmWorking : public Form {
 public:
  explicit frmWorking(const frmMain& main);

  TextPage pgWorking{this, "pgWorking"};

  MenuItem mnuPrint{this, "mnuPrint"}, mnuPrintPreview{this, "mnuPrintPreview"};
  MenuItem mnuFileExport{this, "mnuFileExport"}, mnuFileExit{this, "mnuFileExit"};
  MenuItem mnuEditCopy{this, "mnuEditCopy"}, mnuEditFind{this, "mnuEditFind"};
  MenuItem mnuViewNotes{this, "mnuViewNotes"};

  /// Shows the current problem as it is now; nothing while the window is closed.
  void Follow();
  /// Brings the notes into sight that the status line of the main window counts, when there are any.
  void ShowNotes();

  void mnuPrint_Click();
  void mnuPrintPreview_Click();
  /// As PDF, or as a web page when the name ends in html.
  void mnuFileExport_Click();
  void mnuFileExit_Click();
  /// The whole working, as text and as a web page.
  void mnuEditCopy_Click();
  void mnuEditFind_Click();
  void mnuViewNotes_Click();

 protected:
  void Form_Load() override;

 private:
  void Show();
  /// A dialog brings the main window, to which it belongs, before this one.
  void ComeBack();

  const frmMain& main_;
  WorkingLines lines_;
};

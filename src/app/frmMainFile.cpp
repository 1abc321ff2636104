// The project in work: new, kept or let go. See frmMain.h.
#include "app/Declarations.h"
#include "app/frmMain.h"
#include "platform/Services.h"

bool frmMain::ChecknSave() {
  if (!Declarations::DataChanged) return true;
  const BoxAnswer answer =
      TheServices().messageBox.Show("Save changes to " + Declarations::FilePath + "?", Declarations::AppTitle,
                                    BoxIcon::Exclamation, BoxButtons::YesNoCancel);
  return answer == BoxAnswer::No;
}

void frmMain::mnuFileNew_Click() {
  if (ChecknSave()) ResetForm();
}

void frmMain::mnuFileExit_Click() {
  Unload();
}

// See frmWorking.h.
#include "working/frmWorking.h"

#include "app/Declarations.h"
#include "app/ExportFile.h"
#include "platform/Services.h"
#include "working/Working.h"
#include "working/WorkingPages.h"

frmWorking::frmWorking(const frmMain& main) : Form("frmWorking"), main_(main) {
  struct Command {
    MenuItem& Of;
    const char* Caption;
    void (frmWorking::*Run)();
  };
  for (const Command& each : std::initializer_list<Command>{
           {mnuPrint, "Print...", &frmWorking::mnuPrint_Click},
           {mnuPrintPreview, "Print Preview...", &frmWorking::mnuPrintPreview_Click},
           {mnuFileExport, "Export...", &frmWorking::mnuFileExport_Click},
           {mnuFileExit, "Exit", &frmWorking::mnuFileExit_Click},
           {mnuEditCopy, "Copy All", &frmWorking::mnuEditCopy_Click},
           {mnuEditFind, "Find...", &frmWorking::mnuEditFind_Click},
           {mnuViewNotes, "Notes", &frmWorking::mnuViewNotes_Click}}) {
    each.Of.Caption = each.Caption;
    each.Of.Click = [this, run = each.Run] { (this->*run)(); };
  }
}

void frmWorking::Form_Load() {
  Caption = std::string(Declarations::AppTitle) + " - Working";
  Show();
}

void frmWorking::Follow() {
  if (IsLoaded()) Show();
}

void frmWorking::Show() {
  lines_ = FormWorking(main_);
  pgWorking.Text = WorkingText(lines_);
  pgWorking.Html = WorkingHtml(lines_);
}

void frmWorking::ShowNotes() {
  if (!NoteCount(main_.Notes()).empty()) mnuViewNotes_Click();
}

void frmWorking::ComeBack() {
  TheServices().windows.ShowBeside(*this);
}

void frmWorking::mnuPrint_Click() {
  Print::ToPrinter(WorkingPages(main_, lines_));
  ComeBack();
}

void frmWorking::mnuPrintPreview_Click() {
  Print::ToPreview(WorkingPages(main_, lines_));
  ComeBack();
}

void frmWorking::mnuFileExport_Click() {
  ExportFile({"Export Working", "PDF (*.pdf)|*.pdf|Web Page (*.html)|*.html|All Files (*.*)|*.*", "pdf"},
             [this](const std::string& extension) {
               if (extension == "html" || extension == "htm")
                 return WorkingPage(
                     lines_, std::string(Declarations::AppTitle) + " - " + main_.tbProjName.Text.Get());
               return Print::ToPdf(WorkingPages(main_, lines_));
             });
  ComeBack();
}

void frmWorking::mnuFileExit_Click() {
  Unload();
}

void frmWorking::mnuEditCopy_Click() {
  TheServices().clipboard.SetPage(pgWorking.Text, pgWorking.Html);
}

void frmWorking::mnuEditFind_Click() {
  if (pgWorking.FindView) pgWorking.FindView();
}

void frmWorking::mnuViewNotes_Click() {
  if (pgWorking.ScrollView) pgWorking.ScrollView(NotesHeading);
}

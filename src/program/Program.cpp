// See Program.h.
#include "program/Program.h"

#include "app/Declarations.h"
#include "app/main/frmDigits.h"
#include "app/main/frmFind.h"
#include "app/main/frmMannParam.h"
#include "app/settings/InitialFile.h"
#include "help/HTMLHelp.h"
#include "help/frmAbout.h"
#include "print/Print.h"
#include "rating/OpenRating.h"
#include "section/frmIrreg.h"
#include "section/frmSection.h"
#include "working/ResultsTable.h"
#include "working/Working.h"
#include "working/WorkingPages.h"

namespace {

template <class Dialog, class... Arguments>
void ShowModal(Arguments&... arguments) {
  Dialog dialog(arguments...);
  TheServices().windows.ShowModal(dialog);
}

}  // namespace

Program::Program(const Services& services) : Main(*this) {
  InstallServices(services);
  Declarations::Reset();
}

void Program::Start() {
  InitialFile::LoadPreferences();
  TheServices().windows.Show(Main);
}

void Program::OpenDigits() {
  ShowModal<frmDigits>();
}
void Program::OpenMannParam() {
  ShowModal<frmMannParam>(Main);
}
void Program::OpenIrreg() {
  frmIrreg editor;
  Main.ChangedPoints = [&editor] { return editor.ChangedPoints(); };
  TheServices().windows.ShowModal(editor);
  Main.ChangedPoints = nullptr;
}
void Program::OpenSection() {
  ShowModal<frmSection>(Main);
}
void Program::OpenGraph() {
  OpenRatingGraph(Main);
}
void Program::OpenTable() {
  OpenRatingTable(Main);
}
void Program::OpenWorking() {
  TheServices().windows.ShowBeside(working_);
  working_.ShowNotes();
}
void Program::OpenFind() {
  ShowModal<frmFind>(Main);
}
void Program::FollowAnswer() {
  working_.Follow();
}
void Program::CopyResults() {
  CopyResultsTable(Main);
}
void Program::PrintReport() {
  Print::ToPrinter(Print::Report(Main, {"With the working", [this](PageWriter& page) {
                                          const WorkingLines lines = FormWorking(Main);
                                          AppendWorking(page, lines);
                                        }}));
}
void Program::PreviewReport() {
  Print::ToPreview(Print::Report(Main));
}
void Program::OpenHelpContents() {
  HTMLHelp::ShowContents();
}
void Program::OpenHelpIndex() {
  HTMLHelp::ShowIndex();
}
void Program::CloseBeside() {
  HTMLHelp::Close();
  if (working_.IsLoaded()) working_.Unload();
}
void Program::OpenAbout() {
  ShowModal<frmAbout>();
}

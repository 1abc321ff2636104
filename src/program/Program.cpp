// See Program.h.
#include "program/Program.h"

#include "app/Declarations.h"
#include "app/main/frmDigits.h"
#include "app/main/frmMannParam.h"
#include "app/settings/InitialFile.h"
#include "help/HTMLHelp.h"
#include "help/frmAbout.h"
#include "print/Print.h"
#include "rating/OpenRating.h"
#include "section/frmIrreg.h"
#include "section/frmSection.h"

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
void Program::PrintReport() {
  Print::ToPrinter(Print::Report(Main));
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
void Program::CloseHelp() {
  HTMLHelp::Close();
}
void Program::OpenAbout() {
  ShowModal<frmAbout>();
}

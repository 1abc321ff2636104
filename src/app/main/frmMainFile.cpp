// The current project: new, opened, saved or discarded. See frmMain.h.
#include <algorithm>
#include <exception>
#include <filesystem>

#include "app/Declarations.h"
#include "app/main/Fields.h"
#include "app/main/Loading.h"
#include "app/main/Problem.h"
#include "app/main/frmMain.h"
#include "app/project/ProjectFile.h"
#include "engine/ChannelState.h"
#include "files/PathText.h"
#include "files/WholeFile.h"
#include "platform/Services.h"

namespace {

constexpr const char* Filter = "Flumewise Data (*.fwd)|*.fwd|All Files (*.*)|*.*";

std::string NameOf(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

/// With its last separator.
std::string FolderOf(const std::string& path) {
  return path.substr(0, path.rfind('/') + 1);
}

/// The project's file from now on; the dialogs start in its folder.
void TakePath(const std::string& path) {
  Declarations::FilePath = path;
  Declarations::FileTitle = NameOf(path);
  Declarations::UserPath = FolderOf(path);
}

}  // namespace

void frmMain::ShowTitle() {
  Caption = std::string(Declarations::AppTitle) + " - " + Declarations::FileTitle;
}

bool frmMain::ChecknSave() {
  if (!Declarations::DataChanged) return true;
  const BoxAnswer answer =
      TheServices().messageBox.Show("Save changes to " + Declarations::FilePath + "?", Declarations::AppTitle,
                                    BoxIcon::Exclamation, BoxButtons::YesNoCancel);
  if (answer == BoxAnswer::Yes) return SaveProject();
  return answer == BoxAnswer::No;
}

bool frmMain::SaveProject() {
  return Declarations::FileTitle == Declarations::Untitled ? SaveAsDialog() : FileSave();
}

bool frmMain::FileSave() {
  if (!WholeFile::IsStill(Declarations::FilePath, file_->Bytes) &&
      TheServices().messageBox.Show(
          Declarations::FileTitle + " was changed by another program. Overwrite it?", Declarations::AppTitle,
          BoxIcon::Exclamation, BoxButtons::YesNo) != BoxAnswer::Yes) {
    return false;
  }
  return WriteProject();
}

bool frmMain::WriteProject() {
  ReadUnits();
  try {
    RememberSaved(ProjectFile::Write(Declarations::FilePath, CurrentProject()));
  } catch (const std::exception& failure) {
    FileFailed("File not saved; data corrupted.", "Cannot save " + Declarations::FileTitle, failure);
    return false;
  }
  file_->RecoveredFrom.clear();
  Declarations::DataChanged = false;
  RememberFile();
  Declarations::Done = "Saved " + Declarations::FileTitle;
  TellFailure("");
  return true;
}

void frmMain::FileFailed(const char* text, const std::string& what, const std::exception& failure) {
  TellFailure(what + ": " + WholeFile::ReasonOf(failure));
  TheServices().messageBox.Show(text, Declarations::AppTitle, BoxIcon::Exclamation, BoxButtons::Ok);
}

bool frmMain::SaveAsDialog() {
  const bool recovered = !file_->RecoveredFrom.empty();
  const auto path = TheServices().fileDialog.Choose(
      {true, "File SaveAs", recovered ? FolderOf(file_->RecoveredFrom) : Declarations::UserPath, Filter,
       recovered ? NameOf(file_->RecoveredFrom) : Declarations::FileTitle});
  if (!path) return false;
  const std::string before[] = {Declarations::FilePath, Declarations::FileTitle, Declarations::UserPath};
  TakePath(*path);
  const bool saved = WriteProject();  // the dialog has asked whether to overwrite
  if (!saved) {
    Declarations::FilePath = before[0];
    Declarations::FileTitle = before[1];
    Declarations::UserPath = before[2];
  }
  ShowTitle();
  return saved;
}

ProjectFile::Project frmMain::CurrentProject() const {
  const ChannelRecord& record = ChannelState;
  ProjectFile::Project project;
  project.ProjName = tbProjName.Text;
  for (const Field& field : Fields()) {
    if (std::string* const item = Problem::ItemOf(project, field)) *item = (this->*field.Box).Text;
  }
  project.ChannelType = record.ChannelType;
  project.SolveForFlow = record.SolveForFlow;
  project.UnitsEorM = record.UnitsEorM;
  project.SigDigs = Declarations::SigDigs;
  project.EngDigs = Declarations::EngDigs;
  for (std::size_t row = 1; row <= static_cast<std::size_t>(record.IrregPointCount); ++row) {
    const auto& point = record.IrregPoints[row];
    project.Points.push_back({point[1], point[2], point[3]});
  }
  return project;
}

std::optional<ProjectFile::Project> frmMain::UnsavedProject() const {
  const auto points = ChangedPoints ? ChangedPoints() : std::nullopt;
  if (!points && !Declarations::DataChanged) return std::nullopt;
  ProjectFile::Project project = CurrentProject();
  if (points) project.Points = *points;
  return project;
}

bool frmMain::FileOpen(const std::string& path) {
  std::string bytes;
  ProjectFile::Project project;
  try {
    bytes = WholeFile::Read(path);
    project = ProjectFile::Parse(bytes);
  } catch (const std::exception& failure) {
    FileFailed("Cannot open entire file.", "Cannot open " + NameOf(path), failure);
    return false;
  }
  ChangeFile();
  file_->Bytes = std::move(bytes);
  Fill(std::move(project));
  return true;
}

void frmMain::Fill(ProjectFile::Project project) {
  ForgetNews();
  const Loading loading(loading_);
  typed_.Texts.clear();
  Problem::TakeSetting(project);
  tbProjName.Text = project.ProjName;
  for (const Field& field : Fields()) {
    if (const std::string* const item = Problem::ItemOf(project, field)) (this->*field.Box).Rewrite(*item);
  }
  Declarations::DataChanged = false;
}

void frmMain::OpenProject(const std::string& path) {
  if (!FileOpen(path)) return;
  TakePath(path);
  RememberFile();
  ShowProject();
  TidyOpened();
}

void frmMain::RecoverProject(const ProjectFile::Project& project, const std::string& origin) {
  ChangeFile();
  file_->RecoveredFrom = origin;
  Fill(project);
  Declarations::FilePath = Declarations::FileTitle = Declarations::Untitled;
  ShowProject();
  TidyOpened();
  Declarations::DataChanged = true;
}

std::string frmMain::FileOfWork() const {
  return Declarations::FilePath == Declarations::Untitled ? file_->RecoveredFrom : Declarations::FilePath;
}

void frmMain::ShowProject() {
  ShowTitle();
  ToggleControls();
  SetUnitsEorM();
  CheckInputs();
}

void frmMain::TidyOpened() {
  FormatInputs();
  ForgetEdits();
  if (const FocusControl* const from = ActiveControl()) FocusInput(from);
  Declarations::DataChanged = false;  // tidied texts are no edit
}

void frmMain::OpenInstead(const std::string& path) {
  if (ChecknSave()) OneStep([&] { OpenProject(path); });
}

void frmMain::mnuFileNew_Click() {
  if (!ChecknSave()) return;
  OneStep([this] { ResetForm(); });
  FocusInput(nullptr);
}

void frmMain::mnuFileOpen_Click() {
  if (!ChecknSave()) return;
  const auto path = TheServices().fileDialog.Choose({false, "File Open", Declarations::UserPath, Filter, ""});
  if (path) OneStep([&] { OpenProject(*path); });
}

void frmMain::mnuFileSave_Click() {
  SaveProject();
}
void frmMain::mnuFileSaveAs_Click() {
  SaveAsDialog();
}
void frmMain::mnuFilePrint_Click() {
  if (ReadFor(mnuFilePrint)) windows_.PrintReport();
}
void frmMain::mnuFilePrintPreview_Click() {
  if (ReadFor(mnuFilePrintPreview)) windows_.PreviewReport();
}
void frmMain::mnuFileExit_Click() {
  Unload();
}

namespace {

/// A path as a menu shows it: the name first, then the folder, of a long one its end.
std::string NameAndFolder(const std::string& path) {
  constexpr std::size_t longest = 60;  // bytes
  const std::size_t end = path.rfind('/');
  std::string folder = path.substr(0, std::max<std::size_t>(end, 1));
  if (folder.size() > longest) {
    const std::size_t cut = folder.find('/', folder.size() - longest);
    if (cut != std::string::npos) folder = "…" + folder.substr(cut);
  }
  return path.substr(end + 1) + " - " + folder;
}

}  // namespace

void frmMain::RememberFile() {
  recentFiles_.Add(Declarations::FilePath);
  ShowRecentFiles();
}

void frmMain::ShowRecentFiles() {
  const std::vector<std::string> paths = recentFiles_.Paths();
  for (std::size_t i = 0; i < RecentFiles::Most; ++i) {
    const int number = static_cast<int>(i) + 1;
    MenuItem& item = mnuFileRecent[number];
    recentShown_[i] = i < paths.size() ? paths[i] : "";
    item.Caption = std::to_string(number) + " " + (i < paths.size() ? NameAndFolder(paths[i]) : "");
    item.Visible = i < paths.size();
    std::error_code error;
    item.Enabled = i < paths.size() && std::filesystem::exists(PathOf(paths[i]), error);
  }
  mnuFileClearRecent.Visible = !paths.empty();
}

void frmMain::mnuFileClearRecent_Click() {
  recentFiles_.Clear();
  ShowRecentFiles();
}

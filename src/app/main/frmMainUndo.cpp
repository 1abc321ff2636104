// The way back to the problem as it was before a command. See frmMain.h.
#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

#include "app/Declarations.h"
#include "app/FormStuff.h"
#include "app/main/Problem.h"
#include "app/main/frmMain.h"
#include "app/project/ProjectFile.h"

namespace {

constexpr std::size_t MostSteps = 100;

/// The bytes of the project without what opening it would change.
std::string AsOpened(ProjectFile::Project project) {
  for (const Field& field : Fields()) {
    std::string* const text = Problem::ItemOf(project, field);
    if (text != nullptr) *text = field.IsResult() ? "" : FormStuff::AddLeadingZero(*text);
  }
  return ProjectFile::Format(project);
}

using Edit = bool (TextBox::*)();

/// Undoes typing, or makes it again: in the box with the keyboard, else in another one, which gets the
/// keyboard. False when there is none left. `back` takes back what `edit` does.
bool EditABox(Form& form, Edit edit, Edit back) {
  auto* const active = dynamic_cast<TextBox*>(form.ActiveControl());
  if (active != nullptr && (active->*edit)()) return true;
  std::vector<Control*> controls = form.Controls();
  if (edit == &TextBox::Undo) std::ranges::reverse(controls);  // people type from the top down
  for (Control* const control : controls) {
    auto* const box = dynamic_cast<TextBox*>(control);
    if (box == nullptr || !(box->*edit)()) continue;
    // Leaving the box before tidies the others, and would make it again at once.
    (box->*back)();
    form.MoveFocus(*box);
    return (box->*edit)();
  }
  return false;
}

}  // namespace

void frmMain::OneStep(const std::function<void()>& command) {
  UndoStep before = Now();
  command();
  if (Now() == before) return;
  undone_.clear();
  done_.push_back(std::move(before));
  if (done_.size() > MostSteps) done_.erase(done_.begin());
  ForgetEdits();  // what was typed before comes back with the step: the last action is undone first
}

UndoStep frmMain::Now() const {
  file_->Path = Declarations::FilePath;
  file_->Title = Declarations::FileTitle;
  file_->Folder = Declarations::UserPath;
  return {CurrentProject(), typed_, file_, Declarations::DataChanged};
}

void frmMain::ChangeFile() {
  file_ = std::make_shared<KnownFile>();
}

void frmMain::RememberSaved(const std::string& bytes) {
  const std::string before = file_->Bytes;
  for (const std::vector<UndoStep>* const steps : {&done_, &undone_}) {
    for (const UndoStep& step : *steps) {
      KnownFile& known = *step.File;
      if (known.Path == Declarations::FilePath && known.Bytes == before) known.Bytes = bytes;
    }
  }
  file_->Bytes = bytes;
}

void frmMain::GoTo(const UndoStep& step) {
  const FocusControl* const left = ActiveControl();
  Fill(step.Project);
  typed_ = step.Typed;
  file_ = step.File;
  Declarations::FilePath = file_->Path;
  Declarations::FileTitle = file_->Title;
  Declarations::UserPath = file_->Folder;
  ShowProject();
  ForgetEdits();
  FocusInput(left);
  Declarations::DataChanged = Declarations::FileTitle == Declarations::Untitled ? step.Changed : !IsInFile();
}

bool frmMain::IsInFile() const {
  try {
    return AsOpened(ProjectFile::Read(Declarations::FilePath)) == AsOpened(CurrentProject());
  } catch (const std::exception&) {
    return false;
  }
}

void frmMain::Step(std::vector<UndoStep>& from, std::vector<UndoStep>& to) {
  UndoStep now = Now();
  while (!from.empty() && from.back() == now) from.pop_back();
  if (from.empty()) return;
  const UndoStep step = std::move(from.back());
  from.pop_back();
  GoTo(step);
  to.push_back(std::move(now));
}

void frmMain::mnuEditUndo_Click() {
  if (!EditABox(*this, &TextBox::Undo, &TextBox::Redo)) Step(done_, undone_);
}

void frmMain::mnuEditRedo_Click() {
  if (!EditABox(*this, &TextBox::Redo, &TextBox::Undo)) Step(undone_, done_);
}

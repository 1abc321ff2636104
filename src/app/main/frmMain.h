// The main window: one channel problem typed in, checked and solved at every keystroke, and the commands
// around it.
#pragma once

#include <array>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/main/StatusLine.h"
#include "app/main/SubWindows.h"
#include "app/main/TypedUnits.h"
#include "app/main/UndoStep.h"
#include "app/project/ProjectFile.h"
#include "app/settings/RecentFiles.h"
#include "engine/ChannelState.h"
#include "notes/Notes.h"
#include "platform/Controls.h"

struct ChannelType;
struct Field;
struct Reason;

class frmMain : public Form {
 public:
  explicit frmMain(SubWindows& windows);

  Label lblProjName{this, "lblProjName"}, lblChanType{this, "lblChanType"};
  TextBox tbProjName{this, "tbProjName"};

  // Inputs; of flow and depth the one not solved for.
  Label lblFlow{this, "lblFlow"}, lblDepth{this, "lblDepth"}, lblSlope{this, "lblSlope"},
      lblMann{this, "lblMann"}, lblBaseWidth{this, "lblBaseWidth"}, lblSSL{this, "lblSSL"},
      lblSSR{this, "lblSSR"}, lblDiameter{this, "lblDiameter"};
  TextBox tbFlow{this, "tbFlow"}, tbDepth{this, "tbDepth"}, tbSlope{this, "tbSlope"}, tbMann{this, "tbMann"},
      tbBaseWidth{this, "tbBaseWidth"}, tbSSL{this, "tbSSL"}, tbSSR{this, "tbSSR"},
      tbDiameter{this, "tbDiameter"};
  Label lblFlowUnits{this, "lblFlowUnits"}, lblDepthUnits{this, "lblDepthUnits"},
      lblSlopeUnits{this, "lblSlopeUnits"}, lblBaseWidthUnits{this, "lblBaseWidthUnits"},
      lblDiameterUnits{this, "lblDiameterUnits"};
  Button cmdMannParams{this, "cmdMannParams"}, cmdIrreg{this, "cmdIrreg"};
  /// Beside flow and depth: each makes its box the result, as the command in the menu does.
  ToolButton optFlow{this, "optFlow"}, optDepth{this, "optDepth"};

  // Results.
  Label lblVelocity{this, "lblVelocity"}, lblVelHead{this, "lblVelHead"}, lblArea{this, "lblArea"},
      lblWP{this, "lblWP"}, lblHRad{this, "lblHRad"}, lblTopW{this, "lblTopW"}, lblFroude{this, "lblFroude"},
      lblCritD{this, "lblCritD"}, lblCritS{this, "lblCritS"};
  TextBox tbVelocity{this, "tbVelocity"}, tbVelHead{this, "tbVelHead"}, tbArea{this, "tbArea"},
      tbWP{this, "tbWP"}, tbHRad{this, "tbHRad"}, tbTopW{this, "tbTopW"}, tbFroude{this, "tbFroude"},
      tbCritD{this, "tbCritD"}, tbCritS{this, "tbCritS"};
  Label lblVelocityUnits{this, "lblVelocityUnits"}, lblVelHeadUnits{this, "lblVelHeadUnits"},
      lblFlowAreaUnits{this, "lblFlowAreaUnits"}, lblWPunits{this, "lblWPunits"},
      lblHRadUnits{this, "lblHRadUnits"}, lblTopWUnits{this, "lblTopWUnits"},
      lblCritdUnits{this, "lblCritdUnits"}, lblCritSUnits{this, "lblCritSUnits"};

  /// State of the problem in the boxes: an input is empty, or cannot be used, or all results
  /// are there.
  enum class Progress { Missing, Wrong, Solved };
  Property<Progress> CurrentProgress;
  /// Why there is no result; empty when there is one.
  const std::string& WhyNone() const { return status_.At(StatusLine::NoResult); }
  /// What was found beside the results, and what there is to say of it; nothing without results.
  const Findings& Found() const { return found_; }
  const std::vector<Note>& Notes() const { return notes_; }

  /// What went wrong with a file, why there is no result, what was written, what was solved.
  Label lblStatus{this, "lblStatus"};
  /// True while it begins with what went wrong.
  bool TellsFailure() const { return !status_.At(StatusLine::FileError).empty(); }
  /// The notes that the verdict only counts; opens the working at them.
  Button cmdNotes{this, "cmdNotes"};

  MenuItem mnuFileNew{this, "mnuFileNew"}, mnuFileOpen{this, "mnuFileOpen"}, mnuFileSave{this, "mnuFileSave"},
      mnuFileSaveAs{this, "mnuFileSaveAs"}, mnuFilePrint{this, "mnuFilePrint"},
      mnuFilePrintPreview{this, "mnuFilePrintPreview"}, mnuFileExit{this, "mnuFileExit"};
  ControlArray<MenuItem, 1, RecentFiles::Most> mnuFileRecent{this, "mnuFileRecent"};
  MenuItem mnuFileClearRecent{this, "mnuFileClearRecent"};
  MenuItem mnuEditCut{this, "mnuEditCut"}, mnuEditCopy{this, "mnuEditCopy"},
      mnuEditPaste{this, "mnuEditPaste"}, mnuEditDelete{this, "mnuEditDelete"},
      mnuEditUndo{this, "mnuEditUndo"}, mnuEditRedo{this, "mnuEditRedo"},
      mnuEditSelectAll{this, "mnuEditSelectAll"}, mnuEditCopyWithUnit{this, "mnuEditCopyWithUnit"},
      mnuEditCopyFull{this, "mnuEditCopyFull"}, mnuEditCopyResults{this, "mnuEditCopyResults"};
  MenuItem mnuSolveForFlow{this, "mnuSolveForFlow"}, mnuSolveForDepth{this, "mnuSolveForDepth"},
      mnuSolveGraph{this, "mnuSolveGraph"}, mnuSolveTable{this, "mnuSolveTable"},
      mnuSolveSection{this, "mnuSolveSection"}, mnuSolveWorking{this, "mnuSolveWorking"},
      mnuSolveFind{this, "mnuSolveFind"};
  MenuItem mnuOptionsRect{this, "mnuOptionsRect"}, mnuOptionsTriangular{this, "mnuOptionsTriangular"},
      mnuOptionsTrap{this, "mnuOptionsTrap"}, mnuOptionsCircular{this, "mnuOptionsCircular"},
      mnuOptionsIrreg{this, "mnuOptionsIrreg"}, mnuOptionsUnitsEnglish{this, "mnuOptionsUnitsEnglish"},
      mnuOptionsUnitsMetric{this, "mnuOptionsUnitsMetric"}, mnuOptionsDigits{this, "mnuOptionsDigits"};
  MenuItem mnuHelpContents{this, "mnuHelpContents"}, mnuHelpIndex{this, "mnuHelpIndex"},
      mnuHelpAbout{this, "mnuHelpAbout"};

  struct {
    ToolButton New, Open, Save, Print, Graph, Table, Section;
  } Toolbar1{{this, "Toolbar1.New"},    {this, "Toolbar1.Open"},  {this, "Toolbar1.Save"},
             {this, "Toolbar1.Print"},  {this, "Toolbar1.Graph"}, {this, "Toolbar1.Table"},
             {this, "Toolbar1.Section"}};

  // Check and solve (frmMainSolve.cpp).
  /// Tests every input of the channel type, computes or clears the results, enables the commands that need
  /// them.
  void CheckInputs();
  /// Copies the input boxes into the problem record, in feet and seconds.
  void InputToGlobal();
  /// A pipe typed full is full: the same length typed as depth and as diameter differs in its last bits.
  static void FillPipe();
  /// True for a pipe typed full, in feet.
  static bool IsFull(double depth, double diameter);
  /// Runs the engine and fills the result boxes; EngineFault when the inputs have no solution.
  void ComputeResults();
  void ClearResults();
  void EnablePrint(bool enabled);

  // What is shown (frmMainView.cpp).
  /// Shows the boxes of the channel type and gives flow and depth the look of input and result.
  void ToggleControls();
  /// Unit captions and check marks of the unit system in force.
  void SetUnitsEorM();

  // Inputs as texts (frmMainInputs.cpp).
  /// Rewrites the typed inputs after the unit system has changed from `before`.
  void ConvertInput(int before);
  void FormatInputs();
  /// Replaces each input that is typed with a unit by its number in the unit of its box. False when there is
  /// none.
  bool ReadUnits();
  /// A new, empty project.
  void ResetForm();

  // Project (frmMainFile.cpp).
  /// True when the current project may be discarded: unchanged, saved, or given up by the user.
  bool ChecknSave();
  /// True when the project was written to its file.
  bool FileSave();
  /// Asks for a name and saves. False when the user cancels or the file cannot be written: then everything
  /// is as before.
  bool SaveAsDialog();
  /// Fills the boxes from a project file. False, with a message and nothing changed, when it is no whole
  /// project.
  bool FileOpen(const std::string& path);
  /// Opens a file as the current project, in place of the one before.
  void OpenProject(const std::string& path);
  /// The same, once the project before may be discarded: a file dropped on the window.
  void OpenInstead(const std::string& path);
  /// Takes up unsaved work that was kept. Its first save offers the file `origin` (empty: none) that it came
  /// from.
  void RecoverProject(const ProjectFile::Project& project, const std::string& origin);
  /// Puts the projects used last into the File menu, those that are gone greyed.
  void ShowRecentFiles();
  ProjectFile::Project CurrentProject() const;
  /// The file that the project was opened from, saved in or recovered for; empty without one.
  std::string FileOfWork() const;
  /// What would be lost by a power cut now: the project with the points of an open editor; nothing when all
  /// is in its file.
  std::optional<ProjectFile::Project> UnsavedProject() const;
  /// The changed points of the editor; set while one is open.
  std::function<std::optional<std::vector<std::array<EngineValue, 3>>>()> ChangedPoints;

  // Undo of the problem (frmMainUndo.cpp).
  /// Runs a command; what it makes of the problem is one step back.
  void OneStep(const std::function<void()>& command);

  // Commands: a menu item and the tool button of the same role run the same one.
  void mnuFileNew_Click();
  void mnuFileOpen_Click();
  void mnuFileSave_Click();
  void mnuFileSaveAs_Click();
  void mnuFilePrint_Click();
  void mnuFilePrintPreview_Click();
  void mnuFileExit_Click();
  void mnuFileClearRecent_Click();
  void mnuEditCut_Click();
  void mnuEditCopy_Click();
  void mnuEditPaste_Click();
  void mnuEditDelete_Click();
  void mnuEditUndo_Click();
  void mnuEditRedo_Click();
  void mnuEditSelectAll_Click();
  void mnuEditCopyWithUnit_Click();
  /// The number behind the box, with the fewest digits that read back the same.
  void mnuEditCopyFull_Click();
  /// The problem and its answer as a table, for a spreadsheet or a letter.
  void mnuEditCopyResults_Click();
  void mnuOptionsRect_Click() { mnuOptionsRect.Click(); }
  void mnuOptionsTriangular_Click() { mnuOptionsTriangular.Click(); }
  void mnuOptionsTrap_Click() { mnuOptionsTrap.Click(); }
  void mnuOptionsCircular_Click() { mnuOptionsCircular.Click(); }
  void mnuOptionsIrreg_Click() { mnuOptionsIrreg.Click(); }
  void mnuOptionsUnitsEnglish_Click() { mnuOptionsUnitsEnglish.Click(); }
  void mnuOptionsUnitsMetric_Click() { mnuOptionsUnitsMetric.Click(); }
  void mnuOptionsDigits_Click();
  void mnuSolveForFlow_Click();
  void mnuSolveForDepth_Click();
  void mnuSolveGraph_Click();
  void mnuSolveTable_Click();
  void mnuSolveSection_Click();
  void mnuSolveWorking_Click();
  void mnuSolveFind_Click();
  void mnuHelpContents_Click();
  void mnuHelpIndex_Click();
  void mnuHelpAbout_Click();
  void cmdMannParams_Click();
  void cmdIrreg_Click();

  void Form_Activate() override;

 protected:
  void Form_Load() override;
  bool Form_QueryUnload() override;

 private:
  void CaptionControls();
  void JoinInputs();
  void JoinCommands();
  void Input_Change();
  void Input_Validate();
  bool Input_KeyDown(const Field& field, int keyCode);
  /// The input as an amount with a unit, which still has to be read.
  std::optional<TypedUnits::Amount> Unread(const Field& field) const;
  /// Reads what is typed with units; false when the command can then not be run.
  bool ReadFor(const Control& command);
  bool SaveProject();
  bool WriteProject();
  void Fill(ProjectFile::Project project);
  void ShowProject();
  void TidyOpened();
  void ShowTitle();
  /// The project's file is the one used last.
  void RememberFile();
  /// The project has another file from now on, or none; the one before stays known to the steps back.
  void ChangeFile();
  /// The file was written: to no step is that a change by another program.
  void RememberSaved(const std::string& bytes);
  UndoStep Now() const;
  void GoTo(const UndoStep& step);
  /// Goes to the last of the steps that differs from what is there, which is kept among the others.
  void Step(std::vector<UndoStep>& from, std::vector<UndoStep>& to);
  /// The project's file holds the current problem.
  bool IsInFile() const;
  void SelectChannelType(const ChannelType& type);
  void SelectSolveForFlow(bool solveForFlow);
  void SelectUnits(int units);
  /// The types without side slopes or without a base width hold "0" in the boxes that they do not ask for.
  void WriteHiddenZeros();
  /// Moves the keyboard from a control that is gone, or a box that has become a result, to the next input
  /// that can be typed in; from nowhere to the first.
  void FocusInput(const FocusControl* from);
  /// Before the mode changes: the text of the input is kept, and that of the result, the next input, comes
  /// back if it was typed and nothing has changed since.
  void TurnIntoResult(const TextBox& input, TextBox& result);
  /// A change that is no edit of a box counts as one when the project has a file to differ from.
  void MarkProjectChanged();

  /// Computes and shows the results, or states why there are none.
  std::string Solve();
  /// Puts the status line together, the most urgent part first.
  void ShowStatus();
  /// The project changes: messages about reading and writing files are obsolete.
  void ForgetNews();
  void TellFailure(const std::string& failure);
  /// Says in a box that something failed, and in the status line with which file and why.
  void FileFailed(const char* text, const std::string& what, const std::exception& failure);

  Progress FindProgress() const;
  /// Marks the boxes that cannot be used and returns the reason of the first; empty when all can.
  std::string MarkOffences();
  /// What is wrong with an input; empty when nothing is or nobody asks for it.
  std::string OffenceOf(const Field& field) const;
  void SetResultLook(TextBox& box, bool result);
  /// Marks the box to be mended, if it is one alone; returns the reason in words.
  std::string Blame(const Reason& reason);
  /// Gives each result its tool tip: why it is blank, or what there is to know of it.
  void ExplainResults(const std::string& whyNone);
  void ShowNotesOnBoxes();
  static std::string NoteOn(const Field& result);
  /// The row of the box with the keyboard; null when there is none, or it is empty.
  const Field* FieldInHand() const;

  SubWindows& windows_;
  StatusLine status_;
  TypedBefore typed_;  // none once an input changes
  std::shared_ptr<KnownFile> file_ = std::make_shared<KnownFile>();
  std::vector<UndoStep> done_, undone_;
  RecentFiles recentFiles_;
  std::array<std::string, RecentFiles::Most> recentShown_;  // their paths, in the order of the menu
  Findings found_;
  std::vector<Note> notes_;
  bool solved_ = false;
  bool readable_ = false;  // units of inputs have to be read, and nothing else is amiss
  bool loading_ = false;   // boxes are being filled: their Change events neither compute nor clear
};

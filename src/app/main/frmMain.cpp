// The main window's controls: their captions, and which event runs which method. See frmMain.h.
#include "app/main/frmMain.h"

#include "app/Declarations.h"
#include "app/FormStuff.h"
#include "app/main/ChannelTypes.h"
#include "app/main/UnitSystems.h"
#include "app/settings/InitialFile.h"

frmMain::frmMain(SubWindows& windows) : Form("frmMain"), windows_(windows) {
  CaptionControls();
  JoinInputs();
  JoinCommands();
}

void frmMain::CaptionControls() {
  struct Text {
    HasCaption& Of;
    const char* Caption;
  };
  for (const Text& each : std::initializer_list<Text>{{lblProjName, "Project"},
                                                      {cmdMannParams, "Typical values..."},
                                                      {cmdIrreg, "Edit points..."},
                                                      {mnuFileNew, "New"},
                                                      {mnuFileOpen, "Open..."},
                                                      {mnuFileSave, "Save"},
                                                      {mnuFileSaveAs, "Save As..."},
                                                      {mnuFilePrint, "Print..."},
                                                      {mnuFilePrintPreview, "Print Preview..."},
                                                      {mnuFileExit, "Exit"},
                                                      {mnuFileClearRecent, "Clear the List"},
                                                      {mnuEditCut, "Cut"},
                                                      {mnuEditCopy, "Copy"},
                                                      {mnuEditPaste, "Paste"},
                                                      {mnuEditDelete, "Delete"},
                                                      {mnuEditUndo, "Undo"},
                                                      {mnuEditRedo, "Redo"},
                                                      {mnuEditSelectAll, "Select All"},
                                                      {mnuEditCopyWithUnit, "Copy with Unit"},
                                                      {mnuEditCopyFull, "Copy in Full Precision"},
                                                      {mnuEditCopyResults, "Copy Results"},
                                                      {mnuSolveForFlow, "For Flow"},
                                                      {mnuSolveForDepth, "For Depth"},
                                                      {mnuSolveGraph, "Rating Graph..."},
                                                      {mnuSolveTable, "Rating Table..."},
                                                      {mnuSolveSection, "Cross Section..."},
                                                      {mnuSolveWorking, "Working..."},
                                                      {mnuSolveFind, "Find Input..."},
                                                      {mnuOptionsDigits, "Digits..."},
                                                      {mnuHelpContents, "Contents"},
                                                      {mnuHelpIndex, "Index"},
                                                      {mnuHelpAbout, "About Flumewise"}}) {
    each.Of.Caption = each.Caption;
  }
  // Filled when the menu opens: to ask for files that lie far away takes its time.
  for (int i = 1; i <= RecentFiles::Most; ++i) {
    mnuFileRecent[i].Caption = std::to_string(i);
    mnuFileRecent[i].Visible = false;
  }
  mnuFileClearRecent.Visible = false;
  for (const Field& field : Fields()) (this->*field.Name).Caption = field.Caption.Usual;
  for (const ChannelType& type : AllChannelTypes()) (this->*type.Item).Caption = std::string(type.Name);
  for (const UnitSystem& system : AllUnitSystems()) (this->*system.Item).Caption = system.Caption;
}

void frmMain::JoinInputs() {
  for (const Field& field : Fields()) {
    TextBox& box = this->*field.Box;
    if (field.Result == ResultWhen::Always) {
      SetResultLook(box, true);
      continue;
    }
    // A result box changes with every answer; only an input box starts a computation or is tidied when left.
    box.Change = [this, &box] {
      if (!box.Locked) Input_Change();
    };
    box.GotFocus = [&box] {
      if (!box.Locked) FormStuff::SelectAllText(box);
    };
    box.Validate = [this, &box] {
      if (!box.Locked) Input_Validate();
    };
    box.KeyDown = [this, &field, &box](int keyCode, Keys::Modifier with) {
      return !box.Locked && with == Keys::Modifier::None && Input_KeyDown(field, keyCode);
    };
  }
  tbProjName.Change = [this] {
    Declarations::DataChanged = true;
    ForgetNews();
  };
  for (Control* const control : Controls()) {
    auto* const box = dynamic_cast<TextBox*>(control);
    if (box == nullptr) continue;
    box->TooLong = [this] { TellFailure(FormStuff::TooLongForBox); };
    box->UndoneByMenu = true;
  }
}

void frmMain::JoinCommands() {
  struct Command {
    HasClick& Of;
    void (frmMain::*Run)();
  };
  for (const Command& each :
       std::initializer_list<Command>{{mnuFileNew, &frmMain::mnuFileNew_Click},
                                      {Toolbar1.New, &frmMain::mnuFileNew_Click},
                                      {mnuFileOpen, &frmMain::mnuFileOpen_Click},
                                      {Toolbar1.Open, &frmMain::mnuFileOpen_Click},
                                      {mnuFileSave, &frmMain::mnuFileSave_Click},
                                      {Toolbar1.Save, &frmMain::mnuFileSave_Click},
                                      {mnuFileSaveAs, &frmMain::mnuFileSaveAs_Click},
                                      {mnuFilePrint, &frmMain::mnuFilePrint_Click},
                                      {Toolbar1.Print, &frmMain::mnuFilePrint_Click},
                                      {mnuFilePrintPreview, &frmMain::mnuFilePrintPreview_Click},
                                      {mnuFileExit, &frmMain::mnuFileExit_Click},
                                      {mnuFileClearRecent, &frmMain::mnuFileClearRecent_Click},
                                      {mnuEditCut, &frmMain::mnuEditCut_Click},
                                      {mnuEditCopy, &frmMain::mnuEditCopy_Click},
                                      {mnuEditPaste, &frmMain::mnuEditPaste_Click},
                                      {mnuEditDelete, &frmMain::mnuEditDelete_Click},
                                      {mnuEditUndo, &frmMain::mnuEditUndo_Click},
                                      {mnuEditRedo, &frmMain::mnuEditRedo_Click},
                                      {mnuEditSelectAll, &frmMain::mnuEditSelectAll_Click},
                                      {mnuEditCopyWithUnit, &frmMain::mnuEditCopyWithUnit_Click},
                                      {mnuEditCopyFull, &frmMain::mnuEditCopyFull_Click},
                                      {mnuEditCopyResults, &frmMain::mnuEditCopyResults_Click},
                                      {mnuSolveForFlow, &frmMain::mnuSolveForFlow_Click},
                                      {mnuSolveForDepth, &frmMain::mnuSolveForDepth_Click},
                                      {mnuSolveSection, &frmMain::mnuSolveSection_Click},
                                      {Toolbar1.Section, &frmMain::mnuSolveSection_Click},
                                      {mnuSolveGraph, &frmMain::mnuSolveGraph_Click},
                                      {Toolbar1.Graph, &frmMain::mnuSolveGraph_Click},
                                      {mnuSolveTable, &frmMain::mnuSolveTable_Click},
                                      {Toolbar1.Table, &frmMain::mnuSolveTable_Click},
                                      {mnuSolveWorking, &frmMain::mnuSolveWorking_Click},
                                      {cmdNotes, &frmMain::mnuSolveWorking_Click},
                                      {mnuSolveFind, &frmMain::mnuSolveFind_Click},
                                      {mnuOptionsDigits, &frmMain::mnuOptionsDigits_Click},
                                      {mnuHelpContents, &frmMain::mnuHelpContents_Click},
                                      {mnuHelpIndex, &frmMain::mnuHelpIndex_Click},
                                      {mnuHelpAbout, &frmMain::mnuHelpAbout_Click},
                                      {cmdIrreg, &frmMain::cmdIrreg_Click},
                                      {cmdMannParams, &frmMain::cmdMannParams_Click}}) {
    each.Of.Click = [this, run = each.Run] { (this->*run)(); };
  }
  for (const Field& field : Fields()) {
    if (field.Solve.Press != nullptr) (this->*field.Solve.Press).Click = (this->*field.Solve.Command).Click;
  }
  for (int i = 1; i <= RecentFiles::Most; ++i) {
    mnuFileRecent[i].Click = [this, i] { OpenInstead(recentShown_.at(static_cast<std::size_t>(i - 1))); };
  }
  for (const ChannelType& type : AllChannelTypes()) {
    (this->*type.Item).Click = [this, &type] { OneStep([&] { SelectChannelType(type); }); };
  }
  for (const UnitSystem& system : AllUnitSystems()) {
    (this->*system.Item).Click = [this, units = system.Units] { OneStep([&] { SelectUnits(units); }); };
  }
}

void frmMain::Form_Load() {
  SetUnitsEorM();
  ResetForm();
}

void frmMain::Form_Activate() {
  ToggleControls();
  CheckInputs();
}

bool frmMain::Form_QueryUnload() {
  if (!ChecknSave()) return false;
  InitialFile::SavePreferences();
  windows_.CloseBeside();
  return true;
}

void frmMain::mnuHelpContents_Click() {
  windows_.OpenHelpContents();
}
void frmMain::mnuHelpIndex_Click() {
  windows_.OpenHelpIndex();
}
void frmMain::mnuHelpAbout_Click() {
  windows_.OpenAbout();
}

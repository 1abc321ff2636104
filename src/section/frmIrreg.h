// The dialog in which the points of a surveyed section are typed, pasted and edited.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "engine/EngineValue.h"

#include "platform/Controls.h"
#include "platform/FlexGrid.h"
#include "platform/XYChart.h"
#include "section/IrregTable.h"
#include "section/Outline.h"

class frmIrreg : public Form {
 public:
  frmIrreg();

  MenuItem mnuFileImport{this, "mnuFileImport"}, mnuFileExport{this, "mnuFileExport"};
  MenuItem mnuEditUndo{this, "mnuEditUndo"}, mnuEditRedo{this, "mnuEditRedo"};
  Label Label1{this, "Label1"};
  FlexGrid MSFlexGrid1{this, "MSFlexGrid1"};
  /// Floats over the current cell while that is being edited; smaller than the cell, so that its frame is
  /// seen, by these twips.
  TextBox tbSel{this, "tbSel"};
  static constexpr int EditNarrower = 60, EditLower = 30;
  XYChart MSChart1{this, "MSChart1"};
  Button cmdCopy{this, "cmdCopy"}, cmdPaste{this, "cmdPaste"}, cmdIns{this, "cmdIns"}, cmdDel{this, "cmdDel"},
      cmdMannParams{this, "cmdMannParams"}, cmdOK{this, "cmdOK"}, cmdCancel{this, "cmdCancel"};

  /// Opens the edit box on the current cell, with the caret behind its text.
  void StartCellEdit();
  /// Ends an edit as Enter does; without one it does nothing.
  void CommitEdit();

  void MSFlexGrid1_KeyPress(char character);
  void MSFlexGrid1_KeyDown(int keyCode, Keys::Modifier with = Keys::Modifier::None);
  bool tbSel_KeyDown(int keyCode, Keys::Modifier with = Keys::Modifier::None);
  void tbSel_Validate();
  void tbSel_LostFocus();
  void cmdCopy_Click();
  void cmdPaste_Click();
  void cmdIns_Click();
  void cmdDel_Click();
  /// Offers typical values for the n of the current row.
  void cmdMannParams_Click();
  void cmdOK_Click();
  void cmdCancel_Click();
  void mnuFileImport_Click();
  void mnuFileExport_Click();
  void mnuEditUndo_Click();
  void mnuEditRedo_Click();

  /// Shows the survey of a file in the import dialog, as the menu command and a dropped file do.
  void ImportFile(const std::string& path);

  /// The ground as far as each row has a station and an elevation.
  Outline::Line Ground() const;
  /// The parts of it with one n each.
  std::vector<Outline::Subsection> Subsections() const;

  // What the keys of a desktop do beyond the buttons.
  /// Empties the selected block.
  void ClearBlock();
  /// Copies the selected block and empties it.
  void CutBlock();
  /// Pastes; where one cell is selected, the block first widens to what the clipboard holds. What has a head,
  /// or more rows or columns than there are from here on, goes through the import dialog.
  void PasteWidened();

  using Points = std::vector<std::array<EngineValue, 3>>;  ///< station, elevation, n
  /// The points as they stand here, acceptable or not; nothing while they are those of the problem.
  std::optional<Points> ChangedPoints() const;
  /// Asks whether they may be lost.
  static bool GiveUpPoints();

 protected:
  void Form_Load() override;
  /// Asks before changed points are given up, unless by Cancel.
  bool Form_QueryUnload() override;

 private:
  struct CellChange {
    int Row, Column;
    std::string Before, After;
  };
  using GridChange = std::vector<CellChange>;

  IrregTable::Table Cells() const;
  /// The cells, with the text of an edit under way.
  IrregTable::Table CellsInWork() const;
  void ShowCells(const IrregTable::Table& table);
  /// Puts imported points in the place of those in the table.
  void TakeOver(const std::optional<IrregTable::Table>& points);
  /// Makes a change of the grid that can be undone.
  template <class Edit>
  void Recorded(Edit edit);
  /// Takes the last change of `from` back, or makes it again, and moves it to `to`.
  void Step(std::vector<GridChange>& from, std::vector<GridChange>& to, std::string CellChange::*text);
  void EnableUndo();

  /// Tints the text that OK would refuse first. What is still missing is no mistake yet.
  void ShowOffence();
  /// True when the table is accepted; else says why and goes to the failing cell.
  bool CheckTable();
  /// Writes rows from the clipboard into the selected block.
  void Paste(const std::string& copied);
  /// Makes the table the section of the problem.
  void LoadArray();
  void LoadChart();

  std::vector<GridChange> done_, undone_;
  IrregTable::Table opened_;  // the cells when the editor opened
  bool settled_ = false;      // stored by OK or given up by Cancel
};

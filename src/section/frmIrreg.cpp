// See frmIrreg.h.
#include "section/frmIrreg.h"

#include <algorithm>
#include <initializer_list>

#include "app/Declarations.h"
#include "app/FormStuff.h"
#include "app/Units.h"
#include "app/main/frmMannParam.h"
#include "engine/ChannelState.h"
#include "engine/NumberText.h"
#include "platform/Keys.h"
#include "platform/Services.h"
#include "section/ImportSurvey.h"
#include "section/PastedSign.h"

namespace {

using IrregTable::Elevation;
using IrregTable::Index;
using IrregTable::ManningN;
using IrregTable::Station;

void Warn(const std::string& text) {
  TheServices().messageBox.Show(text, "Warning", BoxIcon::Exclamation, BoxButtons::Ok);
}

constexpr std::size_t LongestClip = std::size_t{64} << 20U;  // bytes

bool HasLongCell(std::string_view rows) {
  for (std::size_t end = 0; end != std::string_view::npos; rows.remove_prefix(end + 1)) {
    end = rows.find_first_of("\t\r");
    if (std::min(end, rows.size()) > TextBox::LongestText) return true;
    if (end == std::string_view::npos) return false;
  }
  return false;
}

/// The clipboard's text with rows that end in a carriage return alone, as the grid reads them; nothing, after
/// a warning, where the table cannot hold it.
std::optional<std::string> ClipboardRows() {
  std::string text = TheServices().clipboard.Text();
  std::erase(text, '\n');
  if (text.size() <= LongestClip && !HasLongCell(text)) return text;
  Warn("The text on the clipboard is too long for the table.");
  return std::nullopt;
}

/// How a key ends the edit of a cell, and how far it moves the current cell.
struct Ending {
  int KeyCode;
  Keys::Modifier With;
  int Rows, Columns;
  bool Commits = true;
};

using enum Keys::Modifier;
constexpr Ending Endings[] = {
    {Keys::Enter, None, 1, 0},         {Keys::Enter, Shift, -1, 0},        {Keys::Enter, Ctrl, 0, 0},
    {Keys::KeypadEnter, None, 1, 0},   {Keys::KeypadEnter, Shift, -1, 0},  {Keys::KeypadEnter, Ctrl, 0, 0},
    {Keys::Up, None, -1, 0},           {Keys::Down, None, 1, 0},           {Keys::PageUp, None, -10, 0},
    {Keys::PageDown, None, 10, 0},     {Keys::Left, None, 0, -1},          {Keys::Right, None, 0, 1},
    {Keys::Escape, None, 0, 0, false}, {Keys::Escape, Shift, 0, 0, false},
};

/// Inside the text the caret moves first.
bool CaretMoves(const TextBox& box, const Ending& ending) {
  const TextRange caret = box.Selection;
  if (ending.Columns > 0) return caret.Length > 0 || caret.Start < box.Length();
  if (ending.Columns < 0) return caret.Length > 0 || caret.Start > 0;
  return false;
}

/// A step is made in full or not at all, and Page Down never reaches the last row.
bool CanStep(const FlexGrid& grid, const Ending& ending) {
  const GridBlock& at = grid.Selection;
  const int lastRow = grid.Rows() - (ending.KeyCode == Keys::PageDown ? 2 : 1);
  const int row = at.Row + ending.Rows;
  const int col = at.Col + ending.Columns;
  return row >= 1 && row <= lastRow && col >= 1 && col < grid.Cols();
}

}  // namespace

frmIrreg::frmIrreg() : Form("frmIrreg") {
  Caption = "Irregular Section";
  mnuFileImport.Caption = "Import points...";
  mnuFileExport.Caption = "Export points...";
  mnuEditUndo.Caption = "Undo";
  mnuEditRedo.Caption = "Redo";
  Label1.Caption = "One point in each row, stations ascending. An n holds up to the next row that has one.";
  cmdCopy.Caption = "Copy";
  cmdPaste.Caption = "Paste";
  cmdIns.Caption = "Insert Row";
  cmdDel.Caption = "Delete Row";
  cmdMannParams.Caption = "Typical values...";
  cmdOK.Caption = "OK";
  cmdCancel.Caption = "Cancel";
  tbSel.Visible = false;

  mnuFileImport.Click = [this] { mnuFileImport_Click(); };
  mnuFileExport.Click = [this] { mnuFileExport_Click(); };
  mnuEditUndo.Click = [this] { mnuEditUndo_Click(); };
  mnuEditRedo.Click = [this] { mnuEditRedo_Click(); };
  MSFlexGrid1.Press = [this] { CommitEdit(); };
  MSFlexGrid1.DblClick = [this] { StartCellEdit(); };
  MSFlexGrid1.KeyPress = [this](char character) { MSFlexGrid1_KeyPress(character); };
  MSFlexGrid1.KeyDown = [this](int keyCode, Keys::Modifier with) { MSFlexGrid1_KeyDown(keyCode, with); };
  tbSel.KeyDown = [this](int keyCode, Keys::Modifier with) { return tbSel_KeyDown(keyCode, with); };
  tbSel.TooLong = [] { Warn(FormStuff::TooLongForBox + std::string(".")); };
  tbSel.Validate = [this] { tbSel_Validate(); };
  tbSel.LostFocus = [this] { tbSel_LostFocus(); };
  cmdCopy.Click = [this] { cmdCopy_Click(); };
  cmdPaste.Click = [this] { cmdPaste_Click(); };
  cmdIns.Click = [this] { cmdIns_Click(); };
  cmdDel.Click = [this] { cmdDel_Click(); };
  cmdMannParams.Click = [this] { cmdMannParams_Click(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmIrreg::Form_Load() {
  const std::string unit = UnitLabel(ChannelState.UnitsEorM, Units::Length);
  std::vector<std::vector<std::string>> rows = {{"#", "Sta, " + unit, "Elev, " + unit, "n"}};
  for (int row = 1; row <= IrregTable::Rows; ++row) {
    const auto& point = ChannelState.IrregPoints[Index(row)];
    rows.push_back(
        {std::to_string(row), point[Station].Text(), point[Elevation].Text(), point[ManningN].Text()});
  }
  MSFlexGrid1.ColWidths = {500, 900, 900, 600};
  MSFlexGrid1.Load(std::move(rows), 4);
  MSChart1.XTitle = MSFlexGrid1.Text(0, Station);
  MSChart1.YTitle = MSFlexGrid1.Text(0, Elevation);
  opened_ = Cells();
  EnableUndo();
  ShowOffence();
  LoadChart();
}

// Editing a cell.

void frmIrreg::StartCellEdit() {
  const GridBlock& at = MSFlexGrid1.Selection;
  tbSel.Text = MSFlexGrid1.Text(at.Row, at.Col);
  tbSel.ForgetEdits();  // of another cell
  tbSel.Visible = true;
  MoveFocus(tbSel);
  tbSel.Selection = {tbSel.Length(), 0};
}

void frmIrreg::CommitEdit() {
  if (!tbSel.Visible) return;
  tbSel_Validate();
  MoveFocus(MSFlexGrid1);
}

void frmIrreg::MSFlexGrid1_KeyPress(char character) {
  if (character < 32 || character > 126) return;
  StartCellEdit();
  tbSel.Text = std::string(1, character);
  tbSel.Selection = {1, 0};
}

void frmIrreg::MSFlexGrid1_KeyDown(int keyCode, Keys::Modifier with) {
  if (keyCode != Keys::Delete || with != None) return;
  const GridBlock& at = MSFlexGrid1.Selection;
  Recorded([&] { MSFlexGrid1.SetText(at.Row, at.Col, ""); });
}

bool frmIrreg::tbSel_KeyDown(int keyCode, Keys::Modifier with) {
  const auto* const ending = std::ranges::find_if(
      Endings, [&](const Ending& each) { return each.KeyCode == keyCode && each.With == with; });
  if (ending == std::ranges::end(Endings) || CaretMoves(tbSel, *ending)) return false;
  if (ending->Commits) tbSel_Validate();
  if (CanStep(MSFlexGrid1, *ending)) {
    const GridBlock& at = MSFlexGrid1.Selection;
    MSFlexGrid1.SelectCell(at.Row + ending->Rows, at.Col + ending->Columns);
  }
  MoveFocus(MSFlexGrid1);
  return true;
}

void frmIrreg::tbSel_Validate() {
  const GridBlock& at = MSFlexGrid1.Selection;
  Recorded([&] { MSFlexGrid1.SetText(at.Row, at.Col, tbSel.Text); });
}

void frmIrreg::tbSel_LostFocus() {
  tbSel.Visible = false;
  LoadChart();
}

// Blocks and rows.

void frmIrreg::cmdCopy_Click() {
  TheServices().clipboard.Clear();
  TheServices().clipboard.SetText(MSFlexGrid1.Clip());
}

void frmIrreg::cmdPaste_Click() {
  if (const auto rows = ClipboardRows()) Paste(*rows);
}

void frmIrreg::Paste(const std::string& copied) {
  const std::optional<std::string> rows = PastedSign::Settled(copied, MSFlexGrid1.Selection);
  if (!rows) return;
  Recorded([&] { MSFlexGrid1.SetClip(*rows); });
  LoadChart();
}

void frmIrreg::PasteWidened() {
  const std::optional<std::string> rows = ClipboardRows();
  if (!rows) return;
  const std::string survey = TheServices().clipboard.Text();
  if (HasHeadRow(survey)) return TakeOver(ImportedPoints(survey));
  const GridBlock at = MSFlexGrid1.Selection;
  if (at.Row == at.RowSel && at.Col == at.ColSel) {
    const ClipSize there = SizeOfClip(*rows);
    if (at.Row + there.Rows > MSFlexGrid1.Rows() || at.Col + there.Cols > MSFlexGrid1.Cols())
      return TakeOver(ImportedPoints(survey));
    MSFlexGrid1.Selection = {at.Row, at.Col, at.Row + there.Rows - 1, at.Col + there.Cols - 1};
  }
  Paste(*rows);
}

void frmIrreg::ClearBlock() {
  const GridBlock& block = MSFlexGrid1.Selection;
  Recorded([&] {
    for (int row = block.Top(); row <= block.Bottom(); ++row) {
      for (int col = block.Left(); col <= block.Right(); ++col) MSFlexGrid1.SetText(row, col, "");
    }
  });
  LoadChart();
}

void frmIrreg::CutBlock() {
  cmdCopy_Click();
  ClearBlock();
}

void frmIrreg::cmdIns_Click() {
  tbSel.Text = "";
  Recorded([&] {
    IrregTable::Table table = Cells();
    IrregTable::InsertRow(table, MSFlexGrid1.Selection.Get().Row);
    ShowCells(table);
  });
  MoveFocus(MSFlexGrid1);
  LoadChart();
}

void frmIrreg::cmdDel_Click() {
  Recorded([&] {
    IrregTable::Table table = Cells();
    IrregTable::DeleteRow(table, MSFlexGrid1.Selection.Get().Row);
    ShowCells(table);
  });
  MoveFocus(MSFlexGrid1);
  LoadChart();
}

void frmIrreg::cmdMannParams_Click() {
  const int row = MSFlexGrid1.Selection.Get().Row;
  MSFlexGrid1.SelectCell(row, ManningN);
  frmMannParam list(MSFlexGrid1.Text(row, ManningN),
                    [&](const std::string& n) { Recorded([&] { MSFlexGrid1.SetText(row, ManningN, n); }); });
  TheServices().windows.ShowModal(list);
  MoveFocus(MSFlexGrid1);
  LoadChart();
}

void frmIrreg::TakeOver(const std::optional<IrregTable::Table>& points) {
  if (!points) return;
  Recorded([&] { ShowCells(*points); });
  MSFlexGrid1.SelectCell(1, Station);
  LoadChart();
}

// Undo and redo.

IrregTable::Table frmIrreg::Cells() const {
  IrregTable::Table table;
  for (int row = 1; row <= IrregTable::Rows; ++row) {
    for (const int col : {Station, Elevation, ManningN})
      table[Index(row)][Index(col)] = MSFlexGrid1.Text(row, col);
  }
  return table;
}

IrregTable::Table frmIrreg::CellsInWork() const {
  IrregTable::Table table = Cells();
  const GridBlock& at = MSFlexGrid1.Selection;
  if (tbSel.Visible) table[Index(at.Row)][Index(at.Col)] = tbSel.Text;
  return table;
}

void frmIrreg::ShowCells(const IrregTable::Table& table) {
  for (int row = 1; row <= IrregTable::Rows; ++row) {
    for (const int col : {Station, Elevation, ManningN})
      MSFlexGrid1.SetText(row, col, table[Index(row)][Index(col)]);
  }
}

template <class Edit>
void frmIrreg::Recorded(Edit edit) {
  const IrregTable::Table before = Cells();
  edit();
  GridChange change;
  for (int row = 1; row <= IrregTable::Rows; ++row) {
    for (const int col : {Station, Elevation, ManningN}) {
      const std::string& was = before[Index(row)][Index(col)];
      const std::string& is = MSFlexGrid1.Text(row, col);
      if (was != is) change.push_back({row, col, was, is});
    }
  }
  if (change.empty()) return;
  Declarations::Done.clear();
  ShowOffence();
  done_.push_back(std::move(change));
  undone_.clear();
  EnableUndo();
}

void frmIrreg::Step(std::vector<GridChange>& from, std::vector<GridChange>& to,
                    std::string CellChange::*text) {
  CommitEdit();
  if (from.empty()) return;
  to.push_back(std::move(from.back()));
  from.pop_back();
  for (const CellChange& each : to.back()) MSFlexGrid1.SetText(each.Row, each.Column, each.*text);
  MSFlexGrid1.SelectCell(to.back().front().Row, to.back().front().Column);
  Declarations::Done.clear();
  ShowOffence();
  EnableUndo();
  LoadChart();
}

void frmIrreg::EnableUndo() {
  mnuEditUndo.Enabled = !done_.empty();
  mnuEditRedo.Enabled = !undone_.empty();
}

void frmIrreg::mnuEditUndo_Click() {
  Step(done_, undone_, &CellChange::Before);
}
void frmIrreg::mnuEditRedo_Click() {
  Step(undone_, done_, &CellChange::After);
}

// A grid of texts with a current cell and a selected block, as the point table and the rating table use it.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Controls.h"

/// The block from the current cell (Row, Col) to the cell (RowSel, ColSel) that closes it; they are equal
/// when one cell is selected. Either corner may be the first.
struct GridBlock {
  int Row = 0, Col = 0, RowSel = 0, ColSel = 0;
  bool operator==(const GridBlock&) const = default;

  int Top() const { return Row < RowSel ? Row : RowSel; }
  int Bottom() const { return Row < RowSel ? RowSel : Row; }
  int Left() const { return Col < ColSel ? Col : ColSel; }
  int Right() const { return Col < ColSel ? ColSel : Col; }
};

/// Rows and columns of a text of TABs and CRs, without the empty last row.
struct ClipSize {
  int Rows = 1, Cols = 1;
};
ClipSize SizeOfClip(std::string_view text);

struct GridCell {
  int Row = 0, Col = 0;
  bool operator==(const GridCell&) const = default;
};

/// Row 0 and column 0 are heads: fixed on the screen and never current. Entering the grid asks no other
/// control for its Validate.
class FlexGrid : public FocusControl {
 public:
  using FocusControl::FocusControl;
  bool CausesValidation() const override { return false; }

  int Rows() const { return static_cast<int>(cells_.size()); }
  int Cols() const { return cols_; }

  /// Replaces the whole grid by rows of `cols` texts and makes the first cell below the heads current.
  void Load(std::vector<std::vector<std::string>> rows, int cols);

  const std::string& Text(int row, int col) const { return cells_[Index(row)][Index(col)]; }
  void SetText(int row, int col, std::string text);

  Property<GridBlock> Selection;
  /// Makes one cell current and the only one selected.
  void SelectCell(int row, int col) { Selection = {row, col, row, col}; }

  /// The selected block: TAB between the cells of a row, CR between rows.
  std::string Clip() const;
  /// Writes such a text into the selected block. Cells without a value keep their text, values beyond the
  /// block are dropped, and so is an empty last row.
  void SetClip(std::string_view text);

  Property<std::vector<int>> ColWidths;  ///< twips
  /// A cell whose text cannot be used as it is: the view tints it. None in row 0.
  Property<GridCell> Offending;
  /// A row that stands out; 0: none. Set before the rows are loaded.
  Property<int> MarkedRow{0};

  std::function<void()> Press;  ///< a mouse button goes down on a cell, before it becomes the current one
  std::function<void()> DblClick;
  std::function<void(int keyCode, Keys::Modifier)> KeyDown;
  std::function<void(char character)> KeyPress;

  // Set by the view.
  std::function<void()> LoadView;
  std::function<void(int row, int col)> CellView;

 private:
  static std::size_t Index(int number) { return static_cast<std::size_t>(number); }

  std::vector<std::vector<std::string>> cells_;
  int cols_ = 0;
};

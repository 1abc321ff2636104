// The point table on the screen: a small spreadsheet, worked by the keys and the mouse that a person knows
// from large ones. A cell is edited in the form's own box, which floats over it.
#pragma once

#include <QBasicTimer>
#include <QTableView>
#include <optional>

#include "section/frmIrreg.h"

class BoxEdit;

class PointGrid : public QTableView {
 public:
  PointGrid(frmIrreg& form, QWidget* parent);
  QSize sizeHint() const override;

 protected:
  void changeEvent(QEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void updateEditorGeometries() override;

 private:
  struct Cell {
    int Row, Col;
  };

  QModelIndex IndexOf(Cell cell) const;
  /// The cell under the pointer; beyond the edges of the view the next one in that direction.
  Cell CellAt(QPoint place) const;
  Cell Clamped(Cell cell) const;
  bool IsEmptyRow(int row) const;
  int LastFilledRow() const;
  int PageLength() const;

  void ShowSelection();
  void ShowEditor(bool visible);
  void PlaceEditor();
  void FitColumns();

  /// Makes the cell current or, to extend the block, the corner that closes it.
  void GoTo(Cell cell, bool extend);
  void SelectBlock(Cell from, Cell to);
  void PressHead(Cell from, Cell to);
  bool RunCommand(const QKeyEvent& event);
  bool TypeOver(const QKeyEvent& event);
  /// Where a key moves the cell `from`; nothing when it is no such key.
  std::optional<Cell> Target(const QKeyEvent& event, Cell from) const;
  void DragTo(QPoint place);

  frmIrreg& form_;
  FlexGrid& grid_;
  BoxEdit* edit_;
  QBasicTimer dragTimer_;  // scrolls while the pointer is dragged beyond an edge
  QPoint dragPlace_;
};

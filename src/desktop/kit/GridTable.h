// The widget of a grid: a table with fixed headers, of which a block is selected by mouse and keys as in a
// spreadsheet.
#pragma once

#include <QBasicTimer>
#include <QTableView>
#include <optional>

#include "platform/FlexGrid.h"

class EmptyNote;

class GridTable : public QTableView {
 public:
  GridTable(FlexGrid& grid, QWidget* parent);

  /// Said in words while the grid has its header row only.
  void SetEmptyText(const QString& why);

  void selectAll() override;

 protected:
  struct Cell {
    int Row, Col;
  };

  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

  /// As wide as wanted, and wide enough for every text in it.
  virtual int ColumnWidth(int gridColumn) const;
  void FitColumns();
  bool IsEmptyRow(int row) const;
  /// Makes the cell, or the nearest one, current or, to extend the block, the corner that closes it.
  void GoTo(Cell cell, bool extend = false);

 private:
  void ShowLoaded();
  void ShowSelection();
  void TakeColours();

  QModelIndex IndexOf(Cell cell) const;
  /// The cell under the pointer; beyond the edges of the view the next one in that direction.
  Cell CellAt(QPoint place) const;
  int LastFilledRow() const;
  int PageLength() const;
  /// Where a key moves the cell `from`; nothing when it is no such key.
  std::optional<Cell> Target(const QKeyEvent& event, Cell from) const;
  void Press();
  void PressHeader(Cell from, Cell to);
  void SelectBlock(Cell from, Cell to);
  void DragTo(QPoint place);

  FlexGrid& grid_;
  EmptyNote* note_;
  QString whyEmpty_;
  QBasicTimer dragTimer_;  // scrolls while the pointer is dragged beyond an edge
  QPoint dragPlace_;
};

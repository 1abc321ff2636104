// The widget of a grid: a table with fixed headers, of which a block is selected by mouse and keys.
#pragma once

#include <QTableView>

#include "platform/FlexGrid.h"

class EmptyNote;

class GridTable : public QTableView {
 public:
  GridTable(FlexGrid& grid, QWidget* parent);

  /// Said in words while the grid has its header row only.
  void SetEmptyText(const QString& why);

  void selectAll() override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void ShowLoaded();
  void ShowSelection();
  void TellSelection();
  void FitColumns();
  void TakeColours();
  int ColumnWidth(int gridColumn) const;

  FlexGrid& grid_;
  EmptyNote* note_;
  QString whyEmpty_;
};

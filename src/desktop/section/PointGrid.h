// The point table on the screen: a small spreadsheet, worked by the keys and the mouse that the user knows
// from large ones. A cell is edited in the form's own box, which floats over it.
#pragma once

#include "desktop/kit/GridTable.h"
#include "section/frmIrreg.h"

class BoxEdit;

class PointGrid : public GridTable {
 public:
  PointGrid(frmIrreg& form, QWidget* parent);
  QSize sizeHint() const override;

 protected:
  void changeEvent(QEvent* event) override;
  int ColumnWidth(int gridColumn) const override;
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent* event) override;
  void updateEditorGeometries() override;

 private:
  int FullWidth() const;  ///< of all columns
  void ShowEditor(bool visible);
  void PlaceEditor();
  bool RunCommand(const QKeyEvent& event);
  bool TypeOver(const QKeyEvent& event);

  frmIrreg& form_;
  FlexGrid& grid_;
  BoxEdit* edit_;
};

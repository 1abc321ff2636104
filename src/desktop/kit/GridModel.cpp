// See GridModel.h.
#include "desktop/kit/GridModel.h"

#include <QApplication>
#include <QFont>
#include <QPointer>

#include "desktop/kit/Text.h"

namespace {

int Below(int count) {
  return count > 0 ? count - 1 : 0;
}

}  // namespace

GridModel::GridModel(FlexGrid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {
  grid.LoadView = [guarded = QPointer<GridModel>(this)] {
    if (!guarded) return;
    guarded->beginResetModel();
    guarded->endResetModel();
  };
  grid.CellView = [guarded = QPointer<GridModel>(this)](int row, int col) {
    if (!guarded) return;
    if (row == 0) emit guarded->headerDataChanged(Qt::Horizontal, Below(col), Below(col));
    if (col == 0) emit guarded->headerDataChanged(Qt::Vertical, Below(row), Below(row));
    const QModelIndex cell = guarded->index(row - 1, col - 1);
    if (cell.isValid()) emit guarded->dataChanged(cell, cell);
  };
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : Below(grid_.Rows());
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : Below(grid_.Cols());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (role == Qt::DisplayRole) return ToQt(grid_.Text(index.row() + 1, index.column() + 1));
  if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (role == Qt::FontRole && index.row() + 1 == grid_.MarkedRow) {
    QFont bold = QApplication::font("QTableView");
    bold.setBold(true);
    return bold;
  }
  return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (role != Qt::DisplayRole) return {};
  const bool across = orientation == Qt::Horizontal;
  return Printed(across ? grid_.Text(0, section + 1) : grid_.Text(section + 1, 0));
}

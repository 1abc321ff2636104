// The texts of a grid as a model: its first row and column are the headers.
#pragma once

#include <QAbstractTableModel>

#include "platform/FlexGrid.h"

class GridModel : public QAbstractTableModel {
 public:
  GridModel(FlexGrid& grid, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  FlexGrid& grid_;
};

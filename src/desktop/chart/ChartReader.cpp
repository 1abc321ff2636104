// See ChartReader.h.
#include "desktop/chart/ChartReader.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

#include "desktop/chart/ChartWidget.h"

namespace {

/// One coordinate of a point of a chart.
class Cell : public QAccessibleInterface, public QAccessibleTableCellInterface {
 public:
  Cell(ChartWidget* chart, int row, int column) : chart_(chart), row_(row), column_(column) {}

  bool isValid() const override { return !chart_.isNull(); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(chart_); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name && isValid() ? chart_->PointText(row_, column_) : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override { return parent()->rect(); }
  QAccessible::Role role() const override { return QAccessible::Cell; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.readOnly = true;
    return state;
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface*>(this)
                                                   : nullptr;
  }

  bool isSelected() const override { return false; }
  QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  int columnIndex() const override { return column_; }
  int rowIndex() const override { return row_; }
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override { return parent(); }

 private:
  QPointer<ChartWidget> chart_;
  int row_, column_;
};

class ChartReader : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit ChartReader(ChartWidget* chart) : QAccessibleWidget(chart, QAccessible::Chart), chart_(*chart) {}
  ChartReader(const ChartReader&) = delete;
  ChartReader& operator=(const ChartReader&) = delete;

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
  }
  int childCount() const override { return rowCount() * columnCount(); }
  QAccessibleInterface* child(int index) const override {
    return index < 0 || index >= childCount() ? nullptr
                                              : cellAt(index / columnCount(), index % columnCount());
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const auto* const cell = dynamic_cast<const Cell*>(child);
    return cell == nullptr ? -1 : cell->rowIndex() * columnCount() + cell->columnIndex();
  }

  int rowCount() const override { return chart_.RowCount(); }
  int columnCount() const override { return chart_.ColumnCount(); }
  QString columnDescription(int column) const override { return chart_.ColumnTitle(column); }
  QString rowDescription(int) const override { return {}; }
  QAccessibleInterface* cellAt(int row, int column) const override {
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) return nullptr;
    const int index = row * columnCount() + column;
    if (const auto known = cells_.constFind(index); known != cells_.constEnd())
      return QAccessible::accessibleInterface(*known);
    auto* const cell = new Cell(&chart_, row, column);
    cells_.insert(index, QAccessible::registerAccessibleInterface(cell));
    return cell;
  }
  void modelChange(QAccessibleTableModelChangeEvent*) override { ForgetCells(); }

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }

  // A point is read off, never selected.
  int selectedCellCount() const override { return 0; }
  QList<QAccessibleInterface*> selectedCells() const override { return {}; }
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override { return 0; }
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override { return {}; }
  bool isColumnSelected(int) const override { return false; }
  bool isRowSelected(int) const override { return false; }
  bool selectRow(int) override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }

 protected:
  ~ChartReader() override { ForgetCells(); }

 private:
  void ForgetCells() {
    for (const QAccessible::Id cell : std::as_const(cells_)) QAccessible::deleteAccessibleInterface(cell);
    cells_.clear();
  }

  ChartWidget& chart_;
  mutable QHash<int, QAccessible::Id> cells_;  // those asked for
};

}  // namespace

QAccessibleInterface* ReadChart(const QString&, QObject* object) {
  auto* const chart = dynamic_cast<ChartWidget*>(object);
  return chart == nullptr ? nullptr : new ChartReader(chart);
}

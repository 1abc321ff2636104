// See GridTable.h.
#include "desktop/kit/GridTable.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <algorithm>

#include "desktop/kit/Appearance.h"
#include "desktop/kit/Bind.h"
#include "desktop/kit/EmptyNote.h"
#include "desktop/kit/GridModel.h"
#include "desktop/kit/Text.h"

namespace {

constexpr int TwipsPerInch = 1440;

}  // namespace

GridTable::GridTable(FlexGrid& grid, QWidget* parent)
    : QTableView(parent), grid_(grid), note_(new EmptyNote(viewport())) {
  setModel(new GridModel(grid, this));
  setSelectionMode(ContiguousSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setAlternatingRowColors(true);
  TakeColours();
  setHorizontalScrollMode(ScrollPerPixel);
  setCornerButtonEnabled(false);
  for (QHeaderView* const header : {horizontalHeader(), verticalHeader()}) {
    header->setHighlightSections(false);
    header->setMinimumSectionSize(1);
  }
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);  // equal rows scroll quickly, however many
  connect(model(), &QAbstractItemModel::modelReset, this, [this] { ShowLoaded(); });
  // Keys move the current cell before they extend the block, the mouse does it afterwards.
  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { TellSelection(); });
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { TellSelection(); });
  Bind::Join(grid.ColWidths, this, [](GridTable& table, const std::vector<int>&) { table.FitColumns(); });
  Bind::Join(grid.Selection, this, [](GridTable& table, const GridBlock&) { table.ShowSelection(); });
}

void GridTable::SetEmptyText(const QString& why) {
  whyEmpty_ = why;
  ShowLoaded();
}

void GridTable::ShowLoaded() {
  FitColumns();
  ShowSelection();
  const bool empty = model()->rowCount() == 0;
  note_->Tell(empty ? whyEmpty_ : QString());
  setAccessibleDescription(note_->text());
}

/// As wide as wanted, and wide enough for every text in it.
int GridTable::ColumnWidth(int gridColumn) const {
  const std::vector<int>& wanted = grid_.ColWidths;
  const auto column = static_cast<std::size_t>(gridColumn);
  const int width = column < wanted.size() ? wanted[column] * logicalDpiX() / TwipsPerInch : 0;
  int longest = 0;  // the row of the longest text below the header: of numbers the widest one, too
  for (int row = 1; row < grid_.Rows(); ++row) {
    if (longest == 0 || grid_.Text(row, gridColumn).size() > grid_.Text(longest, gridColumn).size())
      longest = row;
  }
  const int margin = fontMetrics().averageCharWidth() * 2 + style()->pixelMetric(QStyle::PM_HeaderMargin) * 2;
  int least = 0;
  for (const int row : {0, longest}) {
    if (row >= grid_.Rows() || grid_.Text(row, gridColumn).empty()) continue;
    least = std::max(least, fontMetrics().horizontalAdvance(Printed(grid_.Text(row, gridColumn))) + margin);
  }
  return std::max(width, least);
}

void GridTable::FitColumns() {
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 7 / 5);
  if (grid_.Cols() == 0) return;
  verticalHeader()->setFixedWidth(ColumnWidth(0));
  for (int column = 0; column < model()->columnCount(); ++column) {
    setColumnWidth(column, ColumnWidth(column + 1));
  }
}

void GridTable::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange) FitColumns();
  if (event->type() == QEvent::PaletteChange) TakeColours();
}

void GridTable::TakeColours() {
  QPalette colours;  // resolves only what is set here
  colours.setColor(QPalette::AlternateBase, Appearance::OtherRow(QApplication::palette(this)));
  setPalette(colours);
}

void GridTable::ShowSelection() {
  const GridBlock& block = grid_.Selection;
  const QModelIndex first = model()->index(block.Top() - 1, block.Left() - 1);
  const QModelIndex last = model()->index(block.Bottom() - 1, block.Right() - 1);
  const QModelIndex moving = model()->index(block.RowSel - 1, block.ColSel - 1);
  if (!first.isValid() || !last.isValid()) return;
  const QItemSelection wanted(first, last);
  if (selectionModel()->selection() == wanted) return;
  // The view remembers the corner that was set first as the one that stays when the block is extended.
  setCurrentIndex(model()->index(block.Row - 1, block.Col - 1));
  if (block.Row == block.RowSel && block.Col == block.ColSel) return;
  selectionModel()->setCurrentIndex(moving, QItemSelectionModel::NoUpdate);
  selectionModel()->select(wanted, QItemSelectionModel::ClearAndSelect);
}

void GridTable::selectAll() {
  QTableView::selectAll();
  if (grid_.Rows() > 1) grid_.Selection = {1, 1, grid_.Rows() - 1, grid_.Cols() - 1};
}

void GridTable::TellSelection() {
  const QItemSelection selection = selectionModel()->selection();
  const QModelIndex moving = currentIndex();
  if (selection.isEmpty() || !selection.first().contains(moving)) return;
  const QItemSelectionRange& range = selection.first();
  // The corner that moves is the current one of the view; across from it the block began.
  const bool upwards = moving.row() == range.top();
  const bool leftwards = moving.column() == range.left();
  const int top = range.top() + 1;
  const int bottom = range.bottom() + 1;
  const int left = range.left() + 1;
  const int right = range.right() + 1;
  grid_.Selection = {upwards ? bottom : top, leftwards ? right : left, upwards ? top : bottom,
                     leftwards ? left : right};
}

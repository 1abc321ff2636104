// See GridTable.h.
#include "desktop/kit/GridTable.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTimerEvent>
#include <algorithm>

#include "desktop/kit/Appearance.h"
#include "desktop/kit/Bind.h"
#include "desktop/kit/EmptyNote.h"
#include "desktop/kit/GridModel.h"
#include "desktop/kit/Text.h"

namespace {

constexpr int TwipsPerInch = 1440;
constexpr int DragInterval = 40;  // ms for each row that is scrolled

/// A tinted block, and in it the current cell with a frame; a text that cannot be used has a tint of its own.
class CellDelegate : public QStyledItemDelegate {
 public:
  CellDelegate(QTableView* view, const FlexGrid& grid)
      : QStyledItemDelegate(view), view_(*view), grid_(grid) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem cell = option;
    const QPalette& colours = option.palette;
    const QColor highlight = colours.color(QPalette::Active, QPalette::Highlight);
    const bool current = index == view_.currentIndex();
    const bool offending = grid_.Offending.Get() == GridCell{index.row() + 1, index.column() + 1};
    cell.palette.setColor(QPalette::Highlight,
                          Appearance::Mixed(colours.color(QPalette::Base), highlight, 0.25));
    cell.palette.setColor(QPalette::HighlightedText, colours.color(QPalette::Text));
    cell.state.setFlag(QStyle::State_HasFocus, false);
    if (index.row() + 1 == grid_.MarkedRow) {
      painter->fillRect(option.rect, Appearance::Mixed(colours.color(QPalette::Base),
                                                       Appearance::WaterSurface(colours), 0.25));
    }
    if (current || offending) {
      cell.state.setFlag(QStyle::State_Selected, false);
      painter->fillRect(option.rect,
                        offending ? Appearance::OffendingGround(colours) : colours.color(QPalette::Base));
    }
    QStyledItemDelegate::paint(painter, cell, index);
    if (!current) return;
    painter->save();
    const bool active = option.state.testFlag(QStyle::State_Active);
    painter->setPen(
        QPen(active ? highlight : Appearance::Mixed(colours.color(QPalette::Base), highlight, 0.5), 2,
             Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->drawRect(QRectF(option.rect).adjusted(1, 1, -1, -1));
    painter->restore();
  }

 private:
  const QTableView& view_;
  const FlexGrid& grid_;
};

}  // namespace

GridTable::GridTable(FlexGrid& grid, QWidget* parent)
    : QTableView(parent), grid_(grid), note_(new EmptyNote(viewport())) {
  setModel(new GridModel(grid, this));
  setItemDelegate(new CellDelegate(this, grid));
  setSelectionMode(NoSelection);  // the grid's own block is shown instead
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setAutoScroll(false);
  setWordWrap(false);
  setAlternatingRowColors(true);
  setCornerButtonEnabled(false);
  // A press ends the edit of a cell before the keyboard comes here, which would drop it.
  setFocusPolicy(Qt::TabFocus);
  setHorizontalScrollMode(ScrollPerPixel);
  setVerticalScrollMode(ScrollPerPixel);
  TakeColours();
  for (QHeaderView* const header : {horizontalHeader(), verticalHeader()}) {
    header->setHighlightSections(false);
    header->setMinimumSectionSize(1);
  }
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);  // equal rows scroll quickly, however many
  connect(model(), &QAbstractItemModel::modelReset, this, [this] { ShowLoaded(); });
  connect(verticalHeader(), &QHeaderView::sectionPressed, this, [this](int section) {
    PressHeader({section + 1, 1}, {section + 1, grid_.Cols() - 1});
  });
  connect(horizontalHeader(), &QHeaderView::sectionPressed, this, [this](int section) {
    PressHeader({1, section + 1}, {grid_.Rows() - 1, section + 1});
  });
  Bind::Join(grid.ColWidths, this, [](GridTable& table, const std::vector<int>&) { table.FitColumns(); });
  Bind::Join(grid.Offending, this, [](GridTable& table, const GridCell&) { table.viewport()->update(); });
  Bind::Join(grid.Selection, this, [](GridTable& table, const GridBlock&) { table.ShowSelection(); });
}

// What the grid holds.

void GridTable::SetEmptyText(const QString& why) {
  whyEmpty_ = why;
  ShowLoaded();
}

void GridTable::ShowLoaded() {
  FitColumns();
  ShowSelection();
  const bool empty = model()->rowCount() == 0;
  note_->Explain(empty ? whyEmpty_ : QString());
  if (!whyEmpty_.isEmpty()) setAccessibleDescription(note_->text());
}

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
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
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

QModelIndex GridTable::IndexOf(Cell cell) const {
  return model()->index(cell.Row - 1, cell.Col - 1);
}

bool GridTable::IsEmptyRow(int row) const {
  for (int col = 1; col < grid_.Cols(); ++col) {
    if (!grid_.Text(row, col).empty()) return false;
  }
  return true;
}

int GridTable::LastFilledRow() const {
  int row = grid_.Rows() - 1;
  while (row > 1 && IsEmptyRow(row)) --row;
  return row;
}

// The block. The grid knows it; the view only shows it.

void GridTable::ShowSelection() {
  const GridBlock& block = grid_.Selection;
  const QModelIndex first = IndexOf({block.Top(), block.Left()});
  const QModelIndex last = IndexOf({block.Bottom(), block.Right()});
  if (!first.isValid() || !last.isValid()) return;
  selectionModel()->select(QItemSelection(first, last), QItemSelectionModel::ClearAndSelect);
  selectionModel()->setCurrentIndex(IndexOf({block.Row, block.Col}), QItemSelectionModel::NoUpdate);
  scrollTo(IndexOf({block.RowSel, block.ColSel}));
  viewport()->update();
}

void GridTable::SelectBlock(Cell from, Cell to) {
  if (grid_.Rows() <= 1) return;
  grid_.Selection = {from.Row, from.Col, to.Row, to.Col};
  scrollTo(IndexOf(to));
}

void GridTable::selectAll() {
  SelectBlock({1, 1}, {grid_.Rows() - 1, grid_.Cols() - 1});
}

void GridTable::GoTo(Cell cell, bool extend) {
  if (grid_.Rows() <= 1) return;
  const Cell to{std::clamp(cell.Row, 1, grid_.Rows() - 1), std::clamp(cell.Col, 1, grid_.Cols() - 1)};
  const GridBlock& at = grid_.Selection;
  SelectBlock(extend ? Cell{at.Row, at.Col} : to, to);
}

// The keyboard.

int GridTable::PageLength() const {
  return std::max(1, viewport()->height() / verticalHeader()->defaultSectionSize() - 1);
}

std::optional<GridTable::Cell> GridTable::Target(const QKeyEvent& event, Cell from) const {
  const bool far = event.modifiers().testFlag(Qt::ControlModifier);
  const int lastRow = grid_.Rows() - 1;
  const int lastCol = grid_.Cols() - 1;
  const int filled = LastFilledRow();
  switch (event.key()) {
    case Qt::Key_Up:
      return Cell{far ? 1 : from.Row - 1, from.Col};
    case Qt::Key_Down:
      return Cell{!far ? from.Row + 1 : from.Row < filled ? filled : lastRow, from.Col};
    case Qt::Key_Left:
      return Cell{from.Row, far ? 1 : from.Col - 1};
    case Qt::Key_Right:
      return Cell{from.Row, far ? lastCol : from.Col + 1};
    case Qt::Key_PageUp:
      return Cell{from.Row - PageLength(), from.Col};
    case Qt::Key_PageDown:
      return Cell{from.Row + PageLength(), from.Col};
    case Qt::Key_Home:
      return Cell{far ? 1 : from.Row, 1};
    case Qt::Key_End:
      return Cell{far ? filled : from.Row, lastCol};
    default:
      return std::nullopt;
  }
}

void GridTable::keyPressEvent(QKeyEvent* event) {
  const GridBlock& at = grid_.Selection;
  const bool extend = event->modifiers().testFlag(Qt::ShiftModifier);
  if (event->matches(QKeySequence::SelectAll)) return selectAll();
  const auto target = Target(*event, extend ? Cell{at.RowSel, at.ColSel} : Cell{at.Row, at.Col});
  if (!target || event->modifiers().testFlag(Qt::AltModifier)) return event->ignore();
  GoTo(*target, extend);
}

// The mouse.

GridTable::Cell GridTable::CellAt(QPoint place) const {
  const QRect view = viewport()->rect();
  const int row = rowAt(std::clamp(place.y(), view.top(), view.bottom()));
  const int col = columnAt(std::clamp(place.x(), view.left(), view.right()));
  const int beyond = place.y() < view.top() ? -1 : place.y() > view.bottom() ? 1 : 0;
  return {row < 0 ? grid_.Rows() : row + 1 + beyond, col < 0 ? grid_.Cols() : col + 1};
}

void GridTable::Press() {
  if (grid_.Press) grid_.Press();
  setFocus(Qt::MouseFocusReason);
}

void GridTable::PressHeader(Cell from, Cell to) {
  Press();
  const QPoint shown(horizontalScrollBar()->value(), verticalScrollBar()->value());
  SelectBlock(from, to);
  ShowSelection();  // Qt has selected the cells its own way
  horizontalScrollBar()->setValue(shown.x());
  verticalScrollBar()->setValue(shown.y());
}

void GridTable::mousePressEvent(QMouseEvent* event) {
  Press();
  if (event->button() != Qt::LeftButton) return;
  GoTo(CellAt(event->position().toPoint()), event->modifiers().testFlag(Qt::ShiftModifier));
}

void GridTable::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() != Qt::LeftButton) return;
  DragTo(event->position().toPoint());
  if (viewport()->rect().contains(dragPlace_)) {
    dragTimer_.stop();
  } else if (!dragTimer_.isActive()) {
    dragTimer_.start(DragInterval, this);
  }
}

void GridTable::mouseReleaseEvent(QMouseEvent*) {
  dragTimer_.stop();
}

void GridTable::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && grid_.DblClick) grid_.DblClick();
}

void GridTable::timerEvent(QTimerEvent* event) {
  if (event->timerId() == dragTimer_.timerId()) {
    DragTo(dragPlace_);
  } else {
    QTableView::timerEvent(event);
  }
}

void GridTable::DragTo(QPoint place) {
  dragPlace_ = place;
  GoTo(CellAt(place), true);
}

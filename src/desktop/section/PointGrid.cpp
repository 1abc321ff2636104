// See PointGrid.h; its keys are in PointGridKeys.cpp.
#include "desktop/section/PointGrid.h"

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
#include "desktop/kit/GridModel.h"

namespace {

constexpr int TwipsPerInch = 1440;
constexpr int TwipsPerDigit = 80;  // in which the widths of the columns were measured
constexpr int DragInterval = 40;   // ms for each row that is scrolled

/// A tinted block, and in it the current cell with a frame.
class CellDelegate : public QStyledItemDelegate {
 public:
  explicit CellDelegate(QTableView* view) : QStyledItemDelegate(view), view_(*view) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem cell = option;
    const QPalette& colours = option.palette;
    const QColor highlight = colours.color(QPalette::Active, QPalette::Highlight);
    const bool current = index == view_.currentIndex();
    cell.palette.setColor(QPalette::Highlight,
                          Appearance::Mixed(colours.color(QPalette::Base), highlight, 0.25));
    cell.palette.setColor(QPalette::HighlightedText, colours.color(QPalette::Text));
    cell.state.setFlag(QStyle::State_HasFocus, false);
    if (current) {
      cell.state.setFlag(QStyle::State_Selected, false);
      painter->fillRect(option.rect, colours.brush(QPalette::Base));
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

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
  }

 private:
  const QTableView& view_;
};

/// The box of a cell. A key that it has no use for must not move the grid beneath it.
class CellEdit : public BoxEdit {
 public:
  using BoxEdit::BoxEdit;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    BoxEdit::keyPressEvent(event);
    event->accept();
  }
};

}  // namespace

PointGrid::PointGrid(frmIrreg& form, QWidget* parent)
    : QTableView(parent),
      form_(form),
      grid_(form.MSFlexGrid1),
      edit_(Bind::Adopt(form.tbSel, new CellEdit(form.tbSel, viewport()))) {
  Bind::Adopt(grid_, this);
  setModel(new GridModel(grid_, this));
  setItemDelegate(new CellDelegate(this));
  setSelectionMode(QAbstractItemView::NoSelection);  // the grid's own block is shown instead
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  setAutoScroll(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  // A press commits an open edit before the keyboard comes here, which would drop it.
  setFocusPolicy(Qt::TabFocus);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setAccessibleName(tr("Points"));
  setAccessibleDescription(
      tr("Typing or F2 edits a cell. Tab moves through the points and Ctrl+Tab leaves the table."));
  edit_->setAccessibleName(tr("Cell"));
  edit_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  edit_->setFrame(false);
  edit_->setAutoFillBackground(true);
  Bind::Join(form.tbSel.Visible, this, [](PointGrid& self, bool visible) { self.ShowEditor(visible); });
  Bind::Join(grid_.Selection, this, [](PointGrid& self, const GridBlock&) { self.ShowSelection(); });
  connect(verticalHeader(), &QHeaderView::sectionPressed, this, [this](int section) {
    PressHead({section + 1, 1}, {section + 1, grid_.Cols() - 1});
  });
  connect(horizontalHeader(), &QHeaderView::sectionPressed, this, [this](int section) {
    PressHead({1, section + 1}, {grid_.Rows() - 1, section + 1});
  });
  FitColumns();
}

QSize PointGrid::sizeHint() const {
  const int width = verticalHeader()->width() + horizontalHeader()->length() +
                    verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
  return {width, horizontalHeader()->sizeHint().height() + 12 * verticalHeader()->defaultSectionSize()};
}

void PointGrid::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange) FitColumns();
}

void PointGrid::FitColumns() {
  const std::vector<int>& widths = grid_.ColWidths;
  const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
  const auto pixels = [&](std::size_t column) { return widths[column] * digit / TwipsPerDigit; };
  verticalHeader()->setFixedWidth(pixels(0));
  for (int section = 0; section < horizontalHeader()->count(); ++section) {
    horizontalHeader()->resizeSection(section, std::max(pixels(static_cast<std::size_t>(section) + 1),
                                                        horizontalHeader()->sectionSizeHint(section)));
  }
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 8 / 5);
  setFixedWidth(sizeHint().width());
}

// Cells.

QModelIndex PointGrid::IndexOf(Cell cell) const {
  return model()->index(cell.Row - 1, cell.Col - 1);
}

PointGrid::Cell PointGrid::Clamped(Cell cell) const {
  return {std::clamp(cell.Row, 1, grid_.Rows() - 1), std::clamp(cell.Col, 1, grid_.Cols() - 1)};
}

PointGrid::Cell PointGrid::CellAt(QPoint place) const {
  const QRect view = viewport()->rect();
  const int row = rowAt(std::clamp(place.y(), view.top(), view.bottom()));
  const int col = columnAt(std::clamp(place.x(), view.left(), view.right()));
  const int beyond = place.y() < view.top() ? -1 : place.y() > view.bottom() ? 1 : 0;
  return Clamped({row < 0 ? grid_.Rows() : row + 1 + beyond, col < 0 ? grid_.Cols() : col + 1});
}

bool PointGrid::IsEmptyRow(int row) const {
  for (int col = 1; col < grid_.Cols(); ++col) {
    if (!grid_.Text(row, col).empty()) return false;
  }
  return true;
}

int PointGrid::LastFilledRow() const {
  int row = grid_.Rows() - 1;
  while (row > 1 && IsEmptyRow(row)) --row;
  return row;
}

int PointGrid::PageLength() const {
  return std::max(1, viewport()->height() / verticalHeader()->defaultSectionSize() - 1);
}

// What the grid and the edit box tell.

void PointGrid::ShowSelection() {
  const GridBlock& block = grid_.Selection;
  selectionModel()->select(
      QItemSelection(IndexOf({block.Top(), block.Left()}), IndexOf({block.Bottom(), block.Right()})),
      QItemSelectionModel::ClearAndSelect);
  selectionModel()->setCurrentIndex(IndexOf({block.Row, block.Col}), QItemSelectionModel::NoUpdate);
  scrollTo(IndexOf({block.RowSel, block.ColSel}));
  viewport()->update();
}

void PointGrid::ShowEditor(bool visible) {
  if (visible) {
    scrollTo(currentIndex());
    PlaceEditor();
  } else if (edit_->hasFocus()) {
    setFocus();  // hiding it would send the keyboard to whatever comes next
  }
  edit_->setVisible(visible);
}

void PointGrid::PlaceEditor() {
  const QRect cell = visualRect(currentIndex());
  const QSize smaller = QSize(frmIrreg::EditNarrower, frmIrreg::EditLower) * logicalDpiX() / TwipsPerInch;
  QRect place({}, cell.size() - smaller);
  place.moveCenter(cell.center());
  edit_->setGeometry(place);
}

void PointGrid::updateEditorGeometries() {
  QTableView::updateEditorGeometries();
  if (edit_->isVisible()) PlaceEditor();
}

// The mouse.

void PointGrid::GoTo(Cell cell, bool extend) {
  const Cell to = Clamped(cell);
  const GridBlock& at = grid_.Selection;
  SelectBlock(extend ? Cell{at.Row, at.Col} : to, to);
}

void PointGrid::SelectBlock(Cell from, Cell to) {
  grid_.Selection = {from.Row, from.Col, to.Row, to.Col};
  scrollTo(IndexOf(to));
}

void PointGrid::PressHead(Cell from, Cell to) {
  grid_.Press();
  setFocus(Qt::MouseFocusReason);
  const QPoint shown(horizontalScrollBar()->value(), verticalScrollBar()->value());
  SelectBlock(from, to);
  ShowSelection();  // Qt has selected the cells its own way
  horizontalScrollBar()->setValue(shown.x());
  verticalScrollBar()->setValue(shown.y());
}

void PointGrid::mousePressEvent(QMouseEvent* event) {
  grid_.Press();
  setFocus(Qt::MouseFocusReason);
  if (event->button() != Qt::LeftButton) return;
  GoTo(CellAt(event->position().toPoint()), event->modifiers().testFlag(Qt::ShiftModifier));
}

void PointGrid::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() != Qt::LeftButton) return;
  DragTo(event->position().toPoint());
  if (viewport()->rect().contains(dragPlace_)) {
    dragTimer_.stop();
  } else if (!dragTimer_.isActive()) {
    dragTimer_.start(DragInterval, this);
  }
}

void PointGrid::mouseReleaseEvent(QMouseEvent*) {
  dragTimer_.stop();
}

void PointGrid::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) grid_.DblClick();
}

void PointGrid::timerEvent(QTimerEvent* event) {
  if (event->timerId() == dragTimer_.timerId()) {
    DragTo(dragPlace_);
  } else {
    QTableView::timerEvent(event);
  }
}

void PointGrid::DragTo(QPoint place) {
  dragPlace_ = place;
  GoTo(CellAt(place), true);
}

// See PointGrid.h.
#include "desktop/section/PointGrid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "desktop/kit/Bind.h"

namespace {

constexpr int TwipsPerInch = 1440;
constexpr int TwipsPerDigit = 80;

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
    : GridTable(form.MSFlexGrid1, parent),
      form_(form),
      grid_(form.MSFlexGrid1),
      edit_(Bind::Adopt(form.tbSel, new CellEdit(form.tbSel, viewport()))) {
  Bind::Adopt(grid_, this);
  setAccessibleName(tr("Points"));
  setAccessibleDescription(
      tr("Typing or F2 edits a cell. Tab moves through the points and Ctrl+Tab leaves the table."));
  edit_->setAccessibleName(tr("Cell"));
  edit_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  edit_->setFrame(false);
  edit_->setAutoFillBackground(true);
  Bind::Join(form.tbSel.Visible, this, [](PointGrid& self, bool visible) { self.ShowEditor(visible); });
  FitColumns();
  setFixedWidth(FullWidth());
}

/// With room for the digits that are going to be typed, too.
int PointGrid::ColumnWidth(int gridColumn) const {
  const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
  const int typed = grid_.ColWidths.Get()[static_cast<std::size_t>(gridColumn)] * digit / TwipsPerDigit;
  return std::max(typed, GridTable::ColumnWidth(gridColumn));
}

int PointGrid::FullWidth() const {
  return verticalHeader()->width() + horizontalHeader()->length() + verticalScrollBar()->sizeHint().width() +
         2 * frameWidth();
}

QSize PointGrid::sizeHint() const {
  return {FullWidth(), horizontalHeader()->sizeHint().height() + 12 * verticalHeader()->defaultSectionSize()};
}

void PointGrid::changeEvent(QEvent* event) {
  GridTable::changeEvent(event);
  if (event->type() == QEvent::FontChange) setFixedWidth(FullWidth());
}

// The box of the current cell.

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
  GridTable::updateEditorGeometries();
  if (edit_->isVisible()) PlaceEditor();
}

// The keyboard.

bool PointGrid::RunCommand(const QKeyEvent& event) {
  if (event.matches(QKeySequence::Copy)) {
    form_.cmdCopy_Click();
  } else if (event.matches(QKeySequence::Cut)) {
    form_.CutBlock();
  } else if (event.matches(QKeySequence::Paste)) {
    form_.PasteWidened();
  } else if (event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace) {
    form_.ClearBlock();
  } else if (event.key() == Qt::Key_F2) {
    form_.StartCellEdit();
  } else {
    return false;
  }
  return true;
}

bool PointGrid::TypeOver(const QKeyEvent& event) {
  const QString text = event.text();
  const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  if (command || text.size() != 1 || text[0] < u' ' || text[0] > u'~') return false;
  grid_.KeyPress(text[0].toLatin1());
  return true;
}

void PointGrid::keyPressEvent(QKeyEvent* event) {
  const GridBlock at = grid_.Selection;
  const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
  if (event->modifiers().testFlag(Qt::AltModifier)) return event->ignore();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    const bool stays = event->modifiers().testFlag(Qt::ControlModifier);
    return GoTo({at.Row + (stays ? 0 : shift ? -1 : 1), at.Col});
  }
  if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) {  // with Ctrl; alone it moves the cell
    QTableView::focusNextPrevChild(event->key() == Qt::Key_Tab && !shift);
    return;
  }
  if (!RunCommand(*event) && !TypeOver(*event)) GridTable::keyPressEvent(event);
}

// Through the points cell by cell and row by row, and out of the table behind the last point.
bool PointGrid::focusNextPrevChild(bool next) {
  form_.CommitEdit();
  const GridBlock at = grid_.Selection;
  const int lastCol = grid_.Cols() - 1;
  const bool atEdge = next ? at.Col == lastCol : at.Col == 1;
  const int row = at.Row + (!atEdge ? 0 : next ? 1 : -1);
  const bool behindPoints = next && at.Col == 1 && IsEmptyRow(at.Row);
  if (behindPoints || row < 1 || row >= grid_.Rows()) return GridTable::focusNextPrevChild(next);
  GoTo({row, !atEdge ? at.Col + (next ? 1 : -1) : next ? 1 : lastCol});
  return true;
}

// The keyboard of the point table. See PointGrid.h.
#include <QKeyEvent>

#include "desktop/kit/Text.h"
#include "desktop/section/PointGrid.h"

std::optional<PointGrid::Cell> PointGrid::Target(const QKeyEvent& event, Cell from) const {
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

bool PointGrid::RunCommand(const QKeyEvent& event) {
  if (event.matches(QKeySequence::Copy)) {
    form_.cmdCopy_Click();
  } else if (event.matches(QKeySequence::Cut)) {
    form_.CutBlock();
  } else if (event.matches(QKeySequence::Paste)) {
    form_.PasteWidened();
  } else if (event.matches(QKeySequence::SelectAll)) {
    SelectBlock({1, 1}, {grid_.Rows() - 1, grid_.Cols() - 1});
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
    return GoTo({at.Row + (stays ? 0 : shift ? -1 : 1), at.Col}, false);
  }
  if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) {  // with Ctrl; alone it moves the cell
    QTableView::focusNextPrevChild(event->key() == Qt::Key_Tab && !shift);
    return;
  }
  if (const auto target = Target(*event, shift ? Cell{at.RowSel, at.ColSel} : Cell{at.Row, at.Col})) {
    return GoTo(*target, shift);
  }
  if (!RunCommand(*event) && !TypeOver(*event)) event->ignore();
}

// Through the points cell by cell and row by row, and out of the table behind the last point.
bool PointGrid::focusNextPrevChild(bool next) {
  form_.CommitEdit();
  const GridBlock at = grid_.Selection;
  const int lastCol = grid_.Cols() - 1;
  const bool atEdge = next ? at.Col == lastCol : at.Col == 1;
  const int row = at.Row + (!atEdge ? 0 : next ? 1 : -1);
  const bool behindPoints = next && at.Col == 1 && IsEmptyRow(at.Row);
  if (behindPoints || row < 1 || row >= grid_.Rows()) return QTableView::focusNextPrevChild(next);
  GoTo({row, !atEdge ? at.Col + (next ? 1 : -1) : next ? 1 : lastCol}, false);
  return true;
}

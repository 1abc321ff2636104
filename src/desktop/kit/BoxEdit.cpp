// See BoxEdit.h.
#include "desktop/kit/BoxEdit.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPointer>

#include "desktop/kit/Appearance.h"
#include "desktop/kit/Bind.h"
#include "desktop/kit/Text.h"
#include "engine/NumberText.h"
#include "platform/Keys.h"

namespace {
// A text comes whole, as it does without a screen; Qt's own limit would cut one from a file silently.
constexpr int LongestText = 4'000'000;

struct KeyPress {
  int Code = 0;  ///< 0: no key that a window handles itself, or held with others
  Keys::Modifier With = Keys::Modifier::None;
};

KeyPress KeyPressOf(const QKeyEvent& event) {
  constexpr std::pair<Qt::Key, int> Codes[] = {
      {Qt::Key_Return, Keys::Enter},  {Qt::Key_Enter, Keys::KeypadEnter}, {Qt::Key_Escape, Keys::Escape},
      {Qt::Key_PageUp, Keys::PageUp}, {Qt::Key_PageDown, Keys::PageDown}, {Qt::Key_Left, Keys::Left},
      {Qt::Key_Up, Keys::Up},         {Qt::Key_Right, Keys::Right},       {Qt::Key_Down, Keys::Down},
      {Qt::Key_Delete, Keys::Delete},
  };
  constexpr std::pair<Qt::KeyboardModifier, Keys::Modifier> Modifiers[] = {
      {Qt::NoModifier, Keys::Modifier::None},
      {Qt::ShiftModifier, Keys::Modifier::Shift},
      {Qt::ControlModifier, Keys::Modifier::Ctrl},
  };
  for (const auto& [key, code] : Codes) {
    if (event.key() != key) continue;
    for (const auto& [held, with] : Modifiers) {
      if ((event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier)) == held) return {code, with};
    }
  }
  return {};
}

std::string Copied(QClipboard::Mode mode) {
  return FromQt(QGuiApplication::clipboard()->text(mode));
}

}  // namespace

BoxEdit::BoxEdit(TextBox& box, QWidget* parent) : QLineEdit(parent), box_(box) {
  setMaxLength(LongestText);
  Bind::Join(box.Locked, this, [](BoxEdit& edit, bool locked) { edit.setReadOnly(locked); });
  Bind::Join(box.Text, this, [](BoxEdit& edit, const std::string&) { edit.ShowText(); });
  Bind::Join(box.Selection, this, [](BoxEdit& edit, const TextRange&) { edit.ShowSelection(); });
  Bind::Join(box.Bold, this, [](BoxEdit& edit, bool bold) {
    QFont font = edit.font();
    font.setBold(bold);
    edit.setFont(font);
  });
  Bind::Join(box.BackColor, this, [](BoxEdit& edit, int) { edit.ShowLook(); });
  Bind::Join(box.Offending, this, [](BoxEdit& edit, bool) { edit.ShowLook(); });
  box.ForgetEditsView = [guarded = QPointer<BoxEdit>(this)] {
    if (guarded) guarded->ForgetEdits();
  };
  box.UndoView = [guarded = QPointer<BoxEdit>(this)] {
    if (!guarded || !guarded->isUndoAvailable()) return false;
    guarded->undo();
    return true;
  };
  box.RedoView = [guarded = QPointer<BoxEdit>(this)] {
    if (!guarded || !guarded->isRedoAvailable()) return false;
    guarded->redo();
    return true;
  };
  ForgetEdits();  // the text that it opens with is none
  connect(this, &QLineEdit::textChanged, this, [this](const QString& text) { box_.Text = FromQt(text); });
  connect(this, &QLineEdit::selectionChanged, this, [this] { TellSelection(); });
  connect(this, &QLineEdit::cursorPositionChanged, this, [this] { TellSelection(); });
}

void BoxEdit::ShowText() {
  const QString wanted = ToQt(box_.Text.Get());
  if (wanted == text()) return;
  if (isReadOnly()) {
    setText(wanted);
  } else {
    // As if it were typed: setText() would forget what can be undone.
    selectAll();
    insert(wanted);
  }
  // The beginning of a long text says more than its end.
  if (!hasFocus()) setCursorPosition(0);
}

void BoxEdit::ShowSelection() {
  const TextRange range = box_.Selection;
  const QString shown = text();
  const int from = UnitsIn(shown, range.Start);
  const int length = UnitsIn(shown.mid(from), range.Length);
  if (length > 0) {
    if (from != selectionStart() || length != selectionLength()) setSelection(from, length);
  } else if (hasSelectedText() || from != cursorPosition()) {
    setCursorPosition(from);
  }
}

void BoxEdit::TellSelection() {
  const QString shown = text();
  const int from = hasSelectedText() ? selectionStart() : cursorPosition();
  box_.Selection = {CharactersIn(shown, from), CharactersIn(selectedText(), shown.size())};
}

void BoxEdit::ForgetEdits() {
  const TextRange selected = box_.Selection;
  setText(text());  // drops the history of edits, and the selection
  box_.Selection = selected;
}

void BoxEdit::ShowLook() {
  const QPalette around = QApplication::palette(this);
  QPalette look;  // resolves only what is set here, so that the rest follows the desktop
  if (box_.Offending) {
    look.setColor(QPalette::Base, Appearance::OffendingGround(around));
  } else if (box_.BackColor == TextBox::LightYellow) {
    look.setColor(QPalette::Base, Appearance::ResultGround(around));
  } else {
    look.setResolveMask(0);
  }
  setPalette(look);
}

void BoxEdit::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) ShowLook();
}

// A dragged text is dropped into the box, a dragged file on the window.
void BoxEdit::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) {
    event->ignore();
  } else {
    QLineEdit::dragEnterEvent(event);
  }
}

void BoxEdit::dropEvent(QDropEvent* event) {
  if (event->source() == this || isReadOnly()) return QLineEdit::dropEvent(event);
  setCursorPosition(cursorPositionAt(event->position().toPoint()));
  box_.Paste(FromQt(event->mimeData()->text()));
  event->acceptProposedAction();
}

void BoxEdit::contextMenuEvent(QContextMenuEvent* event) {
  if (isReadOnly() && !hasSelectedText()) selectAll();  // an answer is copied whole
  QMenu* const menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (QAction* const action : menu->actions()) {
    if (action->text().section(QLatin1Char('\t'), 0, 0) != QLineEdit::tr("&Paste")) continue;
    action->disconnect(this);
    connect(action, &QAction::triggered, this, [this] { box_.Paste(Copied(QClipboard::Clipboard)); });
  }
  if (isReadOnly()) menu->insertActions(menu->actions().value(1), actions());  // behind Copy
  menu->popup(event->globalPos());
}

bool BoxEdit::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    auto& key = static_cast<QKeyEvent&>(*event);
    // A read-only line edit leaves Cut to the menu, which empties the clipboard when nothing is selected.
    if (key.matches(QKeySequence::Cut)) event->accept();
    if (box_.UndoneByMenu && (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo))) {
      event->ignore();
      return true;
    }
    // Under X11 a line edit takes these before any command: they would empty the line, go to its end and
    // delete a character.
    for (const Qt::Key command : {Qt::Key_U, Qt::Key_E, Qt::Key_D}) {
      if (key.keyCombination() != (Qt::CTRL | command)) continue;
      event->ignore();
      return true;
    }
  }
  return QLineEdit::event(event);
}

void BoxEdit::focusInEvent(QFocusEvent* event) {
  focusedByPress_ = event->reason() == Qt::MouseFocusReason;
  QLineEdit::focusInEvent(event);
}

// The menu bar opened by keyboard takes the focus, but its commands work on what is selected here.
void BoxEdit::focusOutEvent(QFocusEvent* event) {
  QFocusEvent popup(QEvent::FocusOut, Qt::PopupFocusReason);
  QLineEdit::focusOutEvent(event->reason() == Qt::MenuBarFocusReason ? &popup : event);
}

void BoxEdit::keyPressEvent(QKeyEvent* event) {
  const KeyPress press = KeyPressOf(*event);
  if (press.Code != 0 && box_.KeyDown && box_.KeyDown(press.Code, press.With)) return;
  if (!isReadOnly() && event->matches(QKeySequence::Paste)) return box_.Paste(Copied(QClipboard::Clipboard));
  // Cut in an answer copies it, as the menu does.
  if (isReadOnly() && event->matches(QKeySequence::Cut)) return copy();
  QLineEdit::keyPressEvent(event);
}

// The press that gives the focus selects the whole text when the box asks for that; Qt would then put the
// caret under the pointer, and typing would not replace the number.
void BoxEdit::mousePressEvent(QMouseEvent* event) {
  selectOnRelease_ = focusedByPress_ && hasSelectedText() && selectedText() == text();
  focusedByPress_ = false;
  QLineEdit::mousePressEvent(event);
}

void BoxEdit::mouseDoubleClickEvent(QMouseEvent* event) {
  QLineEdit::mouseDoubleClickEvent(event);
  // Signs and separators end a word, but are part of a number.
  if (IsNumeric(box_.Text.Get())) selectAll();
}

void BoxEdit::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton && !isReadOnly() &&
      QGuiApplication::clipboard()->supportsSelection()) {
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    return box_.Paste(Copied(QClipboard::Selection));
  }
  QLineEdit::mouseReleaseEvent(event);
  if (selectOnRelease_ && !hasSelectedText()) selectAll();
  selectOnRelease_ = false;
}

void BoxEdit::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (!hasFrame() || hasFocus()) return;
  const QPalette around = QApplication::palette(this);
  if (!Appearance::NeedsOutline(around)) return;
  QPainter painter(this);
  painter.setPen(Appearance::Faint(around));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

// See BoxEdit.h.
#include "desktop/kit/BoxEdit.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>

#include "desktop/kit/Appearance.h"
#include "desktop/kit/Bind.h"
#include "desktop/kit/Text.h"
#include "platform/Keys.h"

namespace {
// A pasted text comes whole, as it does without a screen; Qt's own limit would cut it silently.
constexpr int LongestText = 4'000'000;

/// The code of a key that a window may handle itself, pressed alone; 0 for any other.
int KeyCode(const QKeyEvent& event) {
  constexpr std::pair<Qt::Key, int> Codes[] = {
      {Qt::Key_Return, Keys::Enter},  {Qt::Key_Enter, Keys::KeypadEnter}, {Qt::Key_Escape, Keys::Escape},
      {Qt::Key_PageUp, Keys::PageUp}, {Qt::Key_PageDown, Keys::PageDown}, {Qt::Key_Left, Keys::Left},
      {Qt::Key_Up, Keys::Up},         {Qt::Key_Right, Keys::Right},       {Qt::Key_Down, Keys::Down},
      {Qt::Key_Delete, Keys::Delete},
  };
  if ((event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier)) != Qt::NoModifier) return 0;
  for (const auto& [key, code] : Codes) {
    if (event.key() == key) return code;
  }
  return 0;
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
  // The beginning of a long text tells more than its end.
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

void BoxEdit::focusInEvent(QFocusEvent* event) {
  focusedByPress_ = event->reason() == Qt::MouseFocusReason;
  QLineEdit::focusInEvent(event);
}

void BoxEdit::keyPressEvent(QKeyEvent* event) {
  if (box_.KeyDown && box_.KeyDown(KeyCode(*event))) return;
  // Cut in an answer copies it, as the menu does.
  if (isReadOnly() && event->matches(QKeySequence::Cut)) copy();
  QLineEdit::keyPressEvent(event);
}

// The press that gives the focus selects the whole text when the box asks for that; Qt would then put the
// caret under the pointer, and typing would not replace the number.
void BoxEdit::mousePressEvent(QMouseEvent* event) {
  selectOnRelease_ = focusedByPress_ && hasSelectedText() && selectedText() == text();
  focusedByPress_ = false;
  QLineEdit::mousePressEvent(event);
}

void BoxEdit::mouseReleaseEvent(QMouseEvent* event) {
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

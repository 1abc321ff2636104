// See EmptyNote.h.
#include "desktop/kit/EmptyNote.h"

#include <QEvent>
#include <algorithm>

EmptyNote::EmptyNote(QWidget* over) : QLabel(over) {
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignCenter);
  setWordWrap(true);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  over->installEventFilter(this);
  hide();
}

void EmptyNote::Explain(const QString& why) {
  setText(why);
  Place();
  setVisible(!why.isEmpty());
}

bool EmptyNote::eventFilter(QObject* over, QEvent* event) {
  if (event->type() == QEvent::Resize) Place();
  return QLabel::eventFilter(over, event);
}

void EmptyNote::Place() {
  const QSize room = parentWidget()->size();
  const int width = std::min(room.width() * 3 / 4, 30 * fontMetrics().height());
  const int height = heightForWidth(width);
  setGeometry((room.width() - width) / 2, std::max((room.height() - height) / 2, 0), width, height);
}

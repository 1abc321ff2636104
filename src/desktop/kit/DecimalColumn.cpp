// See DecimalColumn.h.
#include "desktop/kit/DecimalColumn.h"

#include <QEvent>
#include <QLineEdit>
#include <QStyle>
#include <algorithm>

#include "desktop/kit/Text.h"
#include "engine/NumberText.h"

void DecimalColumn::Add(QLineEdit* box) {
  numbers_.push_back({box});
  box->installEventFilter(this);
  connect(box, &QLineEdit::textChanged, this, [this, box] { Measure(box); });
  Measure(box);
}

bool DecimalColumn::eventFilter(QObject* box, QEvent* event) {
  if (event->type() == QEvent::FontChange) Measure(box);
  if (event->type() == QEvent::Resize) Align();
  return false;
}

void DecimalColumn::Measure(Number& number) {
  const QString text = number.Box->text();
  const QFontMetrics font = number.Box->fontMetrics();
  const qsizetype sign = text.indexOf(ToQt(CurrentNumberLocale().DecimalSign));
  number.Width = font.horizontalAdvance(text);
  number.Fraction = sign < 0 ? 0 : font.horizontalAdvance(text.mid(sign));
}

void DecimalColumn::Measure(const QObject* box) {
  Measure(*std::ranges::find(numbers_, box, &Number::Box));
  Align();
}

void DecimalColumn::Align() {
  const int widest = std::ranges::max(numbers_, {}, &Number::Fraction).Fraction;
  for (const Number& number : numbers_) {
    // A number that would pass the left edge stays further to the right instead.
    const int frame = number.Box->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, number.Box);
    const int spare = number.Box->width() - 2 * frame - 6 - number.Width;
    const QMargins margins(0, 0, std::clamp(widest - number.Fraction, 0, std::max(spare, 0)), 0);
    if (margins != number.Box->textMargins()) number.Box->setTextMargins(margins);
  }
}

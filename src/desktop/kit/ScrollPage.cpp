// See ScrollPage.h.
#include "desktop/kit/ScrollPage.h"

#include <QApplication>
#include <QVBoxLayout>

ScrollPage::ScrollPage(QWidget* page, QWidget* parent) : QScrollArea(parent) {
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setWidget(page);
  // Tab scrolls by itself to where it goes; a mnemonic does not.
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now != nullptr && widget()->isAncestorOf(now)) ensureWidgetVisible(now);
  });
}

QVBoxLayout* ScrollPage::Fill(QWidget* window, QWidget* page, QWidget* ending) {
  auto* const whole = new QVBoxLayout(window);
  whole->setContentsMargins({});
  whole->setSpacing(0);
  whole->addWidget(new ScrollPage(page, window), 1);
  QMargins margins = page->layout()->contentsMargins();
  margins.setTop(0);
  ending->setContentsMargins(margins);
  whole->addWidget(ending);
  return whole;
}

QSize ScrollPage::sizeHint() const {
  QSize hint = widget()->sizeHint();
  if (widget()->hasHeightForWidth()) hint.setHeight(widget()->heightForWidth(hint.width()));
  return hint;
}

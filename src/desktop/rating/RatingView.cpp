// See RatingView.h.
#include "desktop/rating/RatingView.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

#include "desktop/kit/Bind.h"
#include "desktop/kit/Text.h"

RatingView::RatingView(RatingWindow& form, QWidget* parent) : FormWindow(parent), form_(form) {
  AddMenu(tr("&File"), {{&form.mnuPrint, "p", QKeySequence::Print},
                        {&form.mnuPrintPreview, "v", {}},
                        {&form.mnuFileExport, "e", {}},
                        {},
                        {&form.mnuFileExit, "x", QKeySequence::Close}});
  const QMenu* const edit = AddMenu(
      tr("&Edit"), {{&form.mnuEditCopy, "c", QKeySequence::Copy}, {}, {&form.mnuEditSettings, "s", {}}});
  copy_ = edit->actions().first();
}

QString RatingView::WhyNothing() const {
  return tr("Nothing can be computed in this range.\n%1\nAnother range: Edit > Settings.")
      .arg(Printed(form_.lblMissing.Caption.Get()));
}

QVBoxLayout* RatingView::SetContent(QWidget* content) {
  auto* const page = new QWidget(this);
  auto* const column = new QVBoxLayout(page);
  content->setParent(page);
  QLabel* const missing = Bind::Caption(form_.lblMissing, page);
  missing->setWordWrap(true);
  missing->setTextInteractionFlags(Qt::TextSelectableByMouse);
  missing->setContentsMargins(Below());
  column->setContentsMargins({});
  column->addWidget(content, 1);
  column->addWidget(missing);
  setCentralWidget(page);
  return column;
}

QMargins RatingView::Below() const {
  const int em = fontMetrics().height();
  return {em, 0, em, em / 2};
}

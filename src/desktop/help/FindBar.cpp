// See FindBar.h.
#include "desktop/help/FindBar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBrowser>

#include "desktop/kit/Appearance.h"

FindBar::FindBar(QTextBrowser* page, QWidget* parent)
    : QWidget(parent), page_(page), text_(new QLineEdit(this)) {
  auto* const row = new QHBoxLayout(this);
  auto* const caption = new QLabel(tr("Find on &page"), this);
  caption->setBuddy(text_);
  auto* const next = new QPushButton(tr("&Next"), this);
  auto* const previous = new QPushButton(tr("Pre&vious"), this);
  row->addWidget(caption);
  row->addWidget(text_, 1);
  row->addWidget(next);
  row->addWidget(previous);
  connect(text_, &QLineEdit::textChanged, this, [this] {
    QTextCursor place = page_->textCursor();
    place.setPosition(place.selectionStart());  // a text still being typed may stay where it was found
    page_->setTextCursor(place);
    FindNext();
  });
  connect(text_, &QLineEdit::returnPressed, this, &FindBar::FindNext);
  connect(next, &QPushButton::clicked, this, &FindBar::FindNext);
  connect(previous, &QPushButton::clicked, this, &FindBar::FindPrevious);
  hide();
}

void FindBar::Open() {
  show();
  text_->setFocus();
  text_->selectAll();
}

void FindBar::FindNext() {
  Find(false);
}

void FindBar::FindPrevious() {
  Find(true);
}

void FindBar::Find(bool back) {
  const QTextDocument::FindFlags flags = back ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  bool found = page_->find(text_->text(), flags);
  if (!found) {
    const QTextCursor before = page_->textCursor();
    page_->moveCursor(back ? QTextCursor::End : QTextCursor::Start);
    found = page_->find(text_->text(), flags);
    if (!found) page_->setTextCursor(before);
  }
  QPalette colours;  // as it is, the desktop's
  if (!found && !text_->text().isEmpty())
    colours.setColor(QPalette::Base, Appearance::OffendingGround(palette()));
  text_->setPalette(colours);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
  hide();
  page_->setFocus();
}

// See TopicTree.h.
#include "desktop/help/TopicTree.h"

#include <QHeaderView>
#include <QTreeWidgetItemIterator>

namespace {

constexpr int PageRole = Qt::UserRole;

bool Has(const QTreeWidgetItem* item, const QString& text) {
  return item->text(0).contains(text, Qt::CaseInsensitive);
}

bool IsBelowOneWith(const QTreeWidgetItem* item, const QString& text) {
  for (item = item->parent(); item != nullptr; item = item->parent()) {
    if (Has(item, text)) return true;
  }
  return false;
}

}  // namespace

TopicTree::TopicTree(const QString& accessibleName, std::function<void(const QString& page)> open,
                     QWidget* parent)
    : QTreeWidget(parent), open_(std::move(open)) {
  setAccessibleName(accessibleName);
  setHeaderHidden(true);
  setColumnCount(1);
  // Long headings are scrolled to, not cut off.
  header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  header()->setStretchLastSection(false);
  connect(this, &QTreeWidget::itemClicked, this, &TopicTree::OpenItem);
  connect(this, &QTreeWidget::itemActivated, this, &TopicTree::OpenItem);
}

void TopicTree::keyPressEvent(QKeyEvent* event) {
  const QTreeWidgetItem* const before = currentItem();
  QTreeWidget::keyPressEvent(event);
  if (currentItem() != before && currentItem() != nullptr) OpenItem(currentItem());
}

void TopicTree::resizeEvent(QResizeEvent* event) {
  header()->setMinimumSectionSize(viewport()->width());
  QTreeWidget::resizeEvent(event);
}

void TopicTree::Show(const QList<HelpTopic>& topics) {
  clear();
  QList<QTreeWidgetItem*> above;  // the last heading of each level
  bool nested = false;
  for (const HelpTopic& topic : topics) {
    above.resize(topic.Level);
    auto* const item = topic.Level == 0 ? new QTreeWidgetItem(this) : new QTreeWidgetItem(above.last());
    item->setText(0, topic.Title);
    item->setData(0, PageRole, topic.Page);
    above.append(item);
    nested = nested || topic.Level > 0;
  }
  setRootIsDecorated(nested);
}

void TopicTree::Filter(const QString& text) {
  for (QTreeWidgetItemIterator each(this); *each != nullptr; ++each) {
    QTreeWidgetItem* const item = *each;
    const bool has = Has(item, text);
    item->setHidden(!has && !IsBelowOneWith(item, text));
    if (!has) continue;
    for (QTreeWidgetItem* above = item->parent(); above != nullptr; above = above->parent()) {
      above->setHidden(false);
      if (!text.isEmpty()) above->setExpanded(true);
    }
  }
}

void TopicTree::Select(const QString& page) {
  if (currentItem() != nullptr && currentItem()->data(0, PageRole).toString().section('#', 0, 0) == page)
    return;
  for (QTreeWidgetItemIterator each(this); *each != nullptr; ++each) {
    if ((*each)->data(0, PageRole).toString() != page) continue;
    setCurrentItem(*each);
    return;
  }
}

void TopicTree::OpenCurrent() {
  if (currentItem() != nullptr && !currentItem()->isHidden()) return OpenItem(currentItem());
  const QTreeWidgetItemIterator first(this, QTreeWidgetItemIterator::NotHidden);
  if (*first == nullptr) return;
  setCurrentItem(*first);
  OpenItem(*first);
}

void TopicTree::OpenItem(const QTreeWidgetItem* item) {
  const QString page = item->data(0, PageRole).toString();
  if (!page.isEmpty()) open_(page);
}

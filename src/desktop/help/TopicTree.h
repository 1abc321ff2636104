// A tree of headings that lead to help pages: the contents, the index, and what a search has found.
#pragma once

#include <QTreeWidget>
#include <functional>

#include "desktop/help/HelpTopics.h"

class TopicTree : public QTreeWidget {
 public:
  /// `open` is called with the page of a heading that is clicked, entered or reached by a key.
  TopicTree(const QString& accessibleName, std::function<void(const QString& page)> open, QWidget* parent);

  void Show(const QList<HelpTopic>& topics);
  /// Leaves the headings that have the text, with those above and below them.
  void Filter(const QString& text);
  /// Makes the first heading that leads to the page the current one.
  void Select(const QString& page);
  /// Opens the page of the current heading, or of the first one that is shown.
  void OpenCurrent();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void OpenItem(const QTreeWidgetItem* item);

  std::function<void(const QString&)> open_;
};

// The help window: contents, index and search on the left, the page on the right.
#pragma once

#include <QMainWindow>
#include <memory>

#include "desktop/help/HelpFile.h"
#include "desktop/help/HelpSearch.h"
#include "desktop/help/HelpTopics.h"

class FindBar;
class HelpBrowser;
class QLineEdit;
class QTabWidget;
class QToolBar;
class TopicTree;

class HelpWindow : public QMainWindow {
 public:
  explicit HelpWindow(std::unique_ptr<HelpFile> file);
  ~HelpWindow() override;

  // Each brings the window to the front.
  void ShowContents();
  void ShowIndex();
  /// The page at a place of it, either of which may be missing from the file.
  void ShowPage(const QString& page, const QString& place);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* tabBar, QEvent* event) override;

 private:
  QList<HelpTopic> Topics(const QString& suffix) const;
  void MakeContents();
  void MakeIndex();
  void MakeSearch();
  /// A tab of a line to type in above a tree of what was found.
  void AddTab(const QString& title, const QString& caption, QLineEdit* line, TopicTree* tree);
  void MakeTools();
  void GoHome();
  void ShowTab(QWidget* entry);
  void BringToFront();

  std::unique_ptr<HelpFile> file_;
  HelpSearch search_;
  QTabWidget* tabs_;
  HelpBrowser* page_;
  FindBar* find_;
  TopicTree* contents_ = nullptr;
  TopicTree* index_ = nullptr;
  TopicTree* hits_ = nullptr;
  QLineEdit* filter_ = nullptr;
  QLineEdit* words_ = nullptr;
  QList<QWidget*> entries_;  // where the keyboard goes in each tab
  QString home_;             // the first page of the contents
};

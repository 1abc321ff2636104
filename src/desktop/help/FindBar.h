// The line under a help page that finds a text on it.
#pragma once

#include <QWidget>

class QLineEdit;
class QTextBrowser;

class FindBar : public QWidget {
 public:
  FindBar(QTextBrowser* page, QWidget* parent);
  /// Shows the line and takes the keyboard.
  void Open();
  void FindNext();
  void FindPrevious();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// From the selected text onward or back, and round the end of the page.
  void Find(bool back);

  QTextBrowser* page_;
  QLineEdit* text_;
};

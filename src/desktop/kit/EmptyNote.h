// Says in words, in the middle of a widget that has nothing to show, why that is so.
#pragma once

#include <QLabel>

class EmptyNote : public QLabel {
 public:
  explicit EmptyNote(QWidget* over);
  /// Hidden while there is no text.
  void Explain(const QString& why);

 protected:
  bool eventFilter(QObject* over, QEvent* event) override;

 private:
  void Place();
};

// A window of the calculator above the main window: it has menus and is closed by Escape.
#pragma once

#include <QKeySequence>
#include <QMainWindow>
#include <initializer_list>

#include "platform/Controls.h"

class FormWindow : public QMainWindow {
 protected:
  explicit FormWindow(QWidget* parent);

  struct Item {
    MenuItem* Command;  ///< null: a separator
    const char* Mnemonics;
    QKeySequence Shortcut;
  };
  QMenu* AddMenu(const QString& title, const std::initializer_list<Item>& items);
  /// In heights of the text, as far as the screen has room, and in the middle of the window below.
  void SetSize(QSize ems);

  void keyPressEvent(QKeyEvent* event) override;
};

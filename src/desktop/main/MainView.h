// The window of frmMain.
#pragma once

#include <QMainWindow>

#include "app/main/frmMain.h"

class FieldPanel;
class QHBoxLayout;

class MainView : public QMainWindow {
 public:
  MainView(frmMain& form, QWidget* parent);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void AddMenus();
  void AddTools();
  QWidget* ProjectRow(QWidget* parent);
  QWidget* TypeHeading(QWidget* parent);
  QWidget* SolveSwitch(const Field& field, QWidget* parent);
  void AddRow(FieldPanel& panel, const Field& field);
  /// The command of an item; the menus are there first.
  QAction* ActionOf(const MenuItem& item) const;
  FieldPanel* Inputs(QWidget* parent);
  FieldPanel* Results(QWidget* parent);
  QWidget* StatusLine();
  void PlaceOnScreen();

  frmMain& form_;
};

// The window that a question or a new window of the calculator belongs to.
#pragma once

class QMessageBox;
class QWidget;

/// The newest of the open dialogs, else the main window; null when there is none. Never the help window,
/// which may have the keyboard: what belonged to it would leave the others free to be changed meanwhile.
QWidget* FrontWindow();

/// Shows the text of the box as it is, and holds up no window but the one the box belongs to.
void SetUpBox(QMessageBox& box);

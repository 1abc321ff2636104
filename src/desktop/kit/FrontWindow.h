// The window that a question or a new window of the calculator belongs to.
#pragma once

class QWidget;

/// The newest of the open dialogs, else the main window; null when there is none. Never the help window,
/// which may have the keyboard: what belonged to it would leave the others free to be changed meanwhile.
QWidget* FrontWindow();

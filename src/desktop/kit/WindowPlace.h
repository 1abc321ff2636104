// Where a window was and how large: it opens there again.
#pragma once

class QWidget;

/// Gives the window, by its object name and before it is shown, the size and place at which it was last
/// closed, where they still fit the screen; and keeps them when it is closed. A window above another one
/// stays on its screen.
void KeepPlace(QWidget& window);

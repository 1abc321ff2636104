// The tool bar that a window of ours has, and what the toolkit's own lack for screen readers.
#pragma once

class QMainWindow;
class QToolBar;

/// Names the bar, and the button behind one that is too long.
void NameToolBar(QToolBar& bar);

/// An empty one at the top of the window: it stays there, and its icons are as tall as the text asks.
QToolBar* MakeToolBar(QMainWindow& window);

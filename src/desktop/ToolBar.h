// The tool bar that a window of ours has.
#pragma once

class QMainWindow;
class QToolBar;

/// An empty one at the top of the window: it stays there, and its icons are as tall as the text asks.
QToolBar* MakeToolBar(QMainWindow& window);

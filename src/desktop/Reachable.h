// What the toolkit's own widgets lack for a person without mouse or screen.
#pragma once

class QWidget;

/// Names the button behind a tool bar that is too long. Names the parts of a print preview and gives its
/// buttons the keyboard.
void MakeReachable(const QWidget& window);

// What a person does to a control. The console does it to the controllers, the widget player to the real
// widgets; both obey the same conversations.
#pragma once

#include <string>

#include "platform/Controls.h"

class Hands {
 public:
  virtual ~Hands() = default;
  /// Moves the keyboard to the control.
  virtual void Focus(FocusControl& control) = 0;
  /// Replaces the whole text of a focused box: one Change.
  virtual void Type(TextBox& box, const std::string& text) = 0;
  virtual void Select(TextBox& box, TextRange range) = 0;
  /// Presses a button, option button, menu item or tool button that is enabled; the first two have the focus.
  virtual void Click(Control& control) = 0;
  /// Chooses a line of a focused list; the line already chosen is clicked again.
  virtual void Pick(ListBox& list, int index) = 0;
  virtual void DoubleClick(ListBox& list) = 0;
  /// The close box in the title bar.
  virtual void Close(Form& form) = 0;
};

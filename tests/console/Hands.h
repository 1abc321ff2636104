// What a person does to a control. The console does it to the controllers, the widget player to the real
// widgets; both obey the same conversations.
#pragma once

#include <string>

#include "platform/Controls.h"
#include "platform/FlexGrid.h"

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
  /// On the current cell.
  virtual void DoubleClick(FlexGrid& grid) = 0;
  /// Selects the block with the mouse, beginning at the cell that becomes the current one.
  virtual void SelectBlock(FlexGrid& grid, GridBlock block) = 0;
  /// Presses a key of this code on a focused box or grid.
  virtual void Key(FocusControl& control, int keyCode, Keys::Modifier with) = 0;
  /// Types a character into a focused box or grid.
  virtual void Char(FocusControl& control, const std::string& character) = 0;
  /// The close box in the title bar.
  virtual void Close(Form& form) = 0;
};

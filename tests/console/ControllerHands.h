// Acts on the controllers themselves: what the widgets of a window would do to them.
#pragma once

#include "console/Hands.h"

class ControllerHands : public Hands {
 public:
  void Focus(FocusControl& control) override;
  void Type(TextBox& box, const std::string& text) override;
  void Select(TextBox& box, TextRange range) override;
  void Click(Control& control) override;
  void Pick(ListBox& list, int index) override;
  void DoubleClick(ListBox& list) override;
  void DoubleClick(FlexGrid& grid) override;
  void SelectBlock(FlexGrid& grid, GridBlock block) override;
  void Key(FocusControl& control, int keyCode, Keys::Modifier with) override;
  void Char(FocusControl& control, const std::string& character) override;
  void Close(Form& form) override;
};

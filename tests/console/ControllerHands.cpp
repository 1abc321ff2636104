// See ControllerHands.h.
#include "console/ControllerHands.h"

#include <algorithm>

#include "platform/Keys.h"

void ControllerHands::Focus(FocusControl& control) {
  control.Owner().MoveFocus(control);
}

void ControllerHands::Type(TextBox& box, const std::string& text) {
  box.SelectAll();
  box.ReplaceSelection(text);
}

void ControllerHands::Select(TextBox& box, TextRange range) {
  box.Selection = range;
}

void ControllerHands::Click(Control& control) {
  auto* const pressed = dynamic_cast<HasClick*>(&control);
  if (pressed != nullptr && pressed->Click) pressed->Click();
}

void ControllerHands::Pick(ListBox& list, int index) {
  if (list.ListIndex == index) {
    if (list.Click) list.Click();
  } else {
    list.ListIndex = index;
  }
}

void ControllerHands::DoubleClick(ListBox& list) {
  if (list.DblClick) list.DblClick();
}

void ControllerHands::DoubleClick(FlexGrid& grid) {
  SelectBlock(grid, grid.Selection);
  if (grid.DblClick) grid.DblClick();
}

void ControllerHands::SelectBlock(FlexGrid& grid, GridBlock block) {
  if (grid.Press) grid.Press();
  Focus(grid);
  grid.Selection = block;
}

void ControllerHands::Key(FocusControl& control, int keyCode, Keys::Modifier with) {
  if (auto* const grid = dynamic_cast<FlexGrid*>(&control); grid && grid->KeyDown)
    grid->KeyDown(keyCode, with);
  auto* const box = dynamic_cast<TextBox*>(&control);
  if (box == nullptr || (box->KeyDown && box->KeyDown(keyCode, with)) || with != Keys::Modifier::None) return;
  const int caret = box->Selection.Get().Start;
  if (keyCode == Keys::Left) box->Selection = {std::max(caret - 1, 0), 0};
  if (keyCode == Keys::Right) box->Selection = {std::min(caret + 1, box->Length()), 0};
}

void ControllerHands::Char(FocusControl& control, const std::string& character) {
  if (auto* const grid = dynamic_cast<FlexGrid*>(&control); grid && grid->KeyPress) {
    grid->KeyPress(character.front());
  }
  if (auto* const box = dynamic_cast<TextBox*>(&control); box && !box->Locked) {
    box->ReplaceSelection(character);
  }
}

void ControllerHands::Close(Form& form) {
  form.Unload();
}

// See ControllerHands.h.
#include "console/ControllerHands.h"

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

void ControllerHands::Close(Form& form) {
  form.Unload();
}

// See Form.h.
#include "platform/Form.h"

#include <algorithm>

#include "platform/Controls.h"

Control* Form::Find(std::string_view controlName) const {
  const auto found =
      std::ranges::find_if(controls_, [&](const Control* each) { return each->Name() == controlName; });
  return found == controls_.end() ? nullptr : *found;
}

void Form::Load() {
  loaded_ = true;
  Form_Load();
}

void Form::Unload() {
  if (!loaded_ || !Form_QueryUnload()) return;
  loaded_ = false;
  if (UnloadView) UnloadView();
}

void Form::ForgetEdits() const {
  for (Control* const control : controls_) {
    if (auto* const box = dynamic_cast<TextBox*>(control)) box->ForgetEdits();
  }
}

void Form::MoveFocus(FocusControl& next) {
  if (active_ == &next) return;
  FocusControl* const left = active_;
  if (left != nullptr && left->Validate && next.CausesValidation()) left->Validate();
  active_ = &next;  // now: hiding the control that is left moves the keyboard on the screen at once
  if (left != nullptr && left->LostFocus) left->LostFocus();
  if (next.FocusView) next.FocusView();
  if (next.GotFocus) next.GotFocus();
}

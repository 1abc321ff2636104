// See Services.h.
#include "platform/Services.h"

#include <algorithm>

#include "platform/Form.h"

namespace {
std::optional<Services> installed;
}

void InstallServices(const Services& services) {
  installed.emplace(services);
}

const Services& TheServices() {
  return *installed;
}

Form* WindowHost::Top() const {
  const auto top =
      std::find_if(open_.rbegin(), open_.rend(), [](const Form* each) { return each->IsLoaded(); });
  return top == open_.rend() ? nullptr : *top;
}

void WindowHost::Show(Form& form) {
  open_.push_back(&form);
  form.Load();
  Open(form);
  form.Form_Activate();
}

void WindowHost::ShowBeside(Form& form) {
  if (form.IsLoaded()) {
    Raise(form);
    return;
  }
  std::erase(beside_, &form);
  beside_.push_back(&form);
  form.Load();
  Open(form);
}

void WindowHost::ShowModal(Form& form) {
  Show(form);
  if (form.IsLoaded()) Wait(form);
  std::erase(open_, &form);
  if (Form* const below = Top()) below->Form_Activate();
}

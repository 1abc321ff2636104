// See HTMLHelp.h.
#include "help/HTMLHelp.h"

#include "app/Declarations.h"
#include "platform/Controls.h"
#include "platform/Services.h"

namespace {

void ComplainUnless(bool shown) {
  if (shown) return;
  TheServices().messageBox.Show("The help file " + std::string(HTMLHelp::FileName) +
                                    ", which belongs beside the program, is missing or damaged.",
                                Declarations::AppTitle, BoxIcon::Exclamation, BoxButtons::Ok);
}

}  // namespace

void HTMLHelp::ShowContents() {
  ComplainUnless(TheServices().helpViewer.ShowContents());
}

void HTMLHelp::ShowIndex() {
  ComplainUnless(TheServices().helpViewer.ShowIndex());
}

// The manual names its pages after the windows and their explanations after the controls.
void HTMLHelp::ShowFor(const Form& form) {
  const FocusControl* const active = form.ActiveControl();
  ComplainUnless(
      TheServices().helpViewer.ShowPage(form.Name() + ".html", active == nullptr ? "" : active->Name()));
}

void HTMLHelp::Close() {
  TheServices().helpViewer.Close();
}

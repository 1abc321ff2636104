// See frmDigits.h.
#include "app/main/frmDigits.h"

#include "app/Declarations.h"

namespace {

/// Checks the button `index`, or the first when there is none of that index, and unchecks the others.
template <class Buttons>
void Choose(Buttons& buttons, int index) {
  if (index < Buttons::Lower || index > Buttons::Upper) index = Buttons::Lower;
  for (int each = Buttons::Lower; each <= Buttons::Upper; ++each) buttons[each].Value = each == index;
}

template <class Buttons>
int Chosen(Buttons& buttons) {
  int index = Buttons::Lower;
  while (index < Buttons::Upper && !buttons[index].Value) ++index;
  return index;
}

template <class Buttons>
void Prepare(Buttons& buttons) {
  for (int index = Buttons::Lower; index <= Buttons::Upper; ++index) {
    buttons[index].Caption = std::to_string(index);
    buttons[index].Click = [&buttons, index] { Choose(buttons, index); };
  }
}

}  // namespace

frmDigits::frmDigits() : Form("frmDigits") {
  Caption = "Digits";
  lblSigDigs.Caption = "Significant digits for computed results.";
  lblEngDigs.Caption = "Digits right of decimal for WSElev and depth.";
  Prepare(optSigDigs);
  Prepare(optEngDigs);
  cmdOK.Caption = "OK";
  cmdCancel.Caption = "Cancel";
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmDigits::Form_Load() {
  Choose(optSigDigs, Declarations::SigDigs);
  Choose(optEngDigs, Declarations::EngDigs);
}

void frmDigits::cmdOK_Click() {
  Declarations::SigDigs = Chosen(optSigDigs);
  Declarations::EngDigs = Chosen(optEngDigs);
  Unload();
}

void frmDigits::cmdCancel_Click() {
  Unload();
}

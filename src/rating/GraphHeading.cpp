// See GraphHeading.h.
#include "rating/GraphHeading.h"

#include <algorithm>

#include "app/main/ChannelTypes.h"

namespace {

/// The section, then what flows in it.
constexpr TextBox frmMain::*Named[] = {&frmMain::tbDiameter, &frmMain::tbBaseWidth, &frmMain::tbSSL,
                                       &frmMain::tbSSR,      &frmMain::tbMann,      &frmMain::tbSlope,
                                       &frmMain::tbDepth,    &frmMain::tbFlow};

/// "b 3 m"; a ratio has no unit.
std::string InputText(const frmMain& main, const Field& input) {
  std::string symbol = input.Symbol.Current();
  std::erase(symbol, '_');
  std::string text = symbol + ' ' + (main.*input.Box).Text.Get();
  if (input.Unit != nullptr && input.Quantity != Units::Slope) text += ' ' + (main.*input.Unit).Caption.Get();
  return text;
}

}  // namespace

std::vector<std::string> GraphHeading(const frmMain& main, const std::vector<const Field*>& varying) {
  const bool equalSides = main.tbSSL.Text.Get() == main.tbSSR.Text.Get();
  std::string inputs;
  for (TextBox frmMain::*const box : Named) {
    const Field& input = FieldOf(box);
    if (!CurrentChannelType().AsksFor(input) || std::ranges::find(varying, &input) != varying.end()) continue;
    if (equalSides && box == &frmMain::tbSSR) continue;
    const bool bothSides = equalSides && box == &frmMain::tbSSL;
    inputs += inputs.empty() ? ": " : ", ";
    inputs += bothSides ? "z " + main.tbSSL.Text.Get() : InputText(main, input);
  }
  std::vector<std::string> heading;
  if (!main.tbProjName.Text.Get().empty()) heading.push_back(main.tbProjName.Text);
  heading.push_back(ChannelState.ChannelType + inputs);
  return heading;
}

// See ReportLines.h.
#include "print/ReportLines.h"

#include <algorithm>

#include "app/main/ChannelTypes.h"
#include "app/main/frmMain.h"

std::vector<const Field*> ReportInputs() {
  std::vector<const Field*> inputs;
  for (const Field& field : Fields()) {
    if (field.ReportLine >= 0 && CurrentChannelType().UseOf(field) == Use::Asked) inputs.push_back(&field);
  }
  std::ranges::sort(inputs, {}, &Field::ReportLine);
  return inputs;
}

std::vector<const Field*> ReportResults() {
  std::vector<const Field*> results;
  for (const Field& field : Fields()) {
    if (field.Result == ResultWhen::Always) results.push_back(&field);
  }
  return results;
}

std::string ReportValue(const frmMain& main, const Field& field) {
  const std::string unit = UnitLabel(ChannelState.UnitsEorM, field.PageQuantity);
  return (main.*field.Box).Text.Get() + (unit.empty() ? field.Suffix : " " + unit);
}

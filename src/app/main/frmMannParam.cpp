// See frmMannParam.h.
#include "app/main/frmMannParam.h"

#include <utility>

#include "app/NumberDisplay.h"
#include "engine/NumberText.h"

namespace {

struct Roughness {
  double Value;
  const char* Surface;
};

constexpr Roughness TypicalValues[] = {
    {0.011, "Plastic or Welded Steel Surface"},
    {0.013, "Concrete Channel or Pipe"},
    {0.024, "Corrugated Metal"},
    {0.025, "Excavated Gravel Channel"},
    {0.030, "Natural Stream (Clean)"},
    {0.035, "Natural Stream (Small Stones)"},
    {0.050, "Natural Stream (Mountain)"},
    {0.100, "Natural Stream (Floodway)"},
};

/// As the number is typed.
std::string Spelled(double n) {
  return FixedFormat(n, 1, 3).Text();
}

}  // namespace

frmMannParam::frmMannParam(frmMain& main)
    : frmMannParam(main.tbMann.Text, [&main](const std::string& n) { main.tbMann.Text = n; }) {}

frmMannParam::frmMannParam(std::string typed, std::function<void(const std::string&)> take)
    : Form("frmMannParam"), typed_(std::move(typed)), take_(std::move(take)) {
  Caption = "Manning Roughness Values";
  cmdOK.Caption = "OK";
  cmdCancel.Caption = "Cancel";
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
  lstMannParam.DblClick = [this] { cmdOK_Click(); };
}

void frmMannParam::Form_Load() {
  std::vector<std::string> lines;
  int current = 0;
  const double typed = LeadingNumber(typed_);
  for (const Roughness& each : TypicalValues) {
    if (typed == each.Value) current = static_cast<int>(lines.size());
    lines.push_back(Spelled(each.Value) + "   " + each.Surface);
  }
  lstMannParam.Items = lines;
  lstMannParam.ListIndex = current;
}

void frmMannParam::cmdOK_Click() {
  const int line = lstMannParam.ListIndex;
  if (line >= 0) take_(Spelled(TypicalValues[line].Value));
  Unload();
}

void frmMannParam::cmdCancel_Click() {
  Unload();
}

// See ChannelTypes.h.
#include "app/main/ChannelTypes.h"

#include <algorithm>
#include <iterator>

#include "app/main/frmMain.h"

namespace {

constexpr ChannelType TypeRows[] = {
    {.Name = ChannelTypes::Rectangular,
     .Item = &frmMain::mnuOptionsRect,
     .Mnemonic = "r",
     .Asked = {&frmMain::tbFlow, &frmMain::tbDepth, &frmMain::tbSlope, &frmMain::tbMann,
               &frmMain::tbBaseWidth},
     .Zero = {&frmMain::tbSSL, &frmMain::tbSSR}},
    {.Name = ChannelTypes::Triangular,
     .Item = &frmMain::mnuOptionsTriangular,
     .Mnemonic = "t",
     .Asked = {&frmMain::tbFlow, &frmMain::tbDepth, &frmMain::tbSlope, &frmMain::tbMann, &frmMain::tbSSL,
               &frmMain::tbSSR},
     .Zero = {&frmMain::tbBaseWidth}},
    {.Name = ChannelTypes::Trapezoidal,
     .Item = &frmMain::mnuOptionsTrap,
     .Mnemonic = "p",
     .Asked = {&frmMain::tbFlow, &frmMain::tbDepth, &frmMain::tbSlope, &frmMain::tbMann,
               &frmMain::tbBaseWidth, &frmMain::tbSSL, &frmMain::tbSSR}},
    {.Name = ChannelTypes::Circular,
     .Item = &frmMain::mnuOptionsCircular,
     .Mnemonic = "c",
     .Is = Shape::Pipe,
     .Asked = {&frmMain::tbFlow, &frmMain::tbDepth, &frmMain::tbSlope, &frmMain::tbMann,
               &frmMain::tbDiameter}},
    // Its roughness lies in its points.
    {.Name = ChannelTypes::Irregular,
     .Item = &frmMain::mnuOptionsIrreg,
     .Mnemonic = "i",
     .Is = Shape::Survey,
     .Asked = {&frmMain::tbFlow, &frmMain::tbDepth, &frmMain::tbSlope},
     .NoResult = {&frmMain::tbCritS}},
};

constexpr ChannelType Unknown;

bool Contains(const auto& boxes, TextBox frmMain::*box) {
  return std::ranges::find(boxes, box) != boxes.end();
}

}  // namespace

Use ChannelType::UseOf(const Field& field) const {
  if (Contains(Zero, field.Box)) return Use::Zero;
  const bool has =
      field.Result == ResultWhen::Always ? !Contains(NoResult, field.Box) : Contains(Asked, field.Box);
  return has ? Use::Asked : Use::None;
}

std::span<const ChannelType> AllChannelTypes() {
  return TypeRows;
}

const ChannelType& CurrentChannelType() {
  const auto* const row =
      std::ranges::find(TypeRows, std::string_view(ChannelState.ChannelType), &ChannelType::Name);
  return row == std::end(TypeRows) ? Unknown : *row;
}

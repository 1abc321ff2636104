// See frmTempPic.h.
#include "print/frmTempPic.h"

#include <algorithm>
#include <cstdint>

frmTempPic::frmTempPic(const XYChart& chart) : Form("frmTempPic") {
  PicTemp.Picture = &chart;
}

ChartSize frmTempPic::Fitted(ChartSize room) const {
  const ChartSize& own = PicTemp.Picture->Size;
  if (std::min({room.Width, room.Height, own.Width, own.Height}) <= 0) return {};
  const auto scaled = [](int length, int numerator, int denominator) {
    return static_cast<int>(std::int64_t{length} * numerator / denominator);
  };
  const int widthAtFullHeight = scaled(room.Height, own.Width, own.Height);
  if (widthAtFullHeight <= room.Width) return {widthAtFullHeight, room.Height};
  return {room.Width, scaled(room.Width, own.Height, own.Width)};
}

// See ChartPicture.h.
#include "app/ChartPicture.h"

#include "app/ExportFile.h"
#include "platform/Services.h"

namespace ChartPicture {

void Copy(const XYChart& chart) {
  TheServices().clipboard.Clear();
  if (chart.CopyView) chart.CopyView();
}

void Export(const XYChart& chart, const std::string& title) {
  ExportFile({title, "Picture (*.png)|*.png|Drawing (*.svg)|*.svg|Document (*.pdf)|*.pdf|All Files (*.*)|*.*",
              "png"},
             [&chart](const std::string& extension) {
               return chart.PictureView ? chart.PictureView(extension) : "";
             });
}

}  // namespace ChartPicture

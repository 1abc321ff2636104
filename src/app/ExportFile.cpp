// See ExportFile.h.
#include "app/ExportFile.h"

#include <algorithm>
#include <exception>
#include <stdexcept>

#include "app/Declarations.h"
#include "files/PathText.h"
#include "files/WholeFile.h"
#include "platform/Services.h"

namespace {

std::string ExtensionOf(const std::string& path) {
  std::string extension = TextOf(PathOf(path).extension());
  if (!extension.empty()) extension.erase(0, 1);
  std::ranges::transform(extension, extension.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return extension;
}

}  // namespace

void ExportFile(const ExportKind& kind,
                const std::function<std::string(const std::string& extension)>& content) {
  const std::string proposed = TextOf(PathOf(Declarations::FileTitle).stem()) + "." + kind.Extension;
  const Services& services = TheServices();
  const auto path =
      services.fileDialog.Choose({true, kind.Title, Declarations::UserPath, kind.Filter, proposed});
  if (!path) return;
  try {
    const std::string bytes = content(ExtensionOf(*path));
    if (bytes.empty()) throw std::runtime_error("no file of this kind can be made");
    WholeFile::Write(*path, bytes);
    Declarations::Done = "Exported " + TextOf(PathOf(*path).filename());
  } catch (const std::exception& failure) {
    services.messageBox.Show("Cannot write " + *path + ": " + WholeFile::ReasonOf(failure),
                             Declarations::AppTitle, BoxIcon::Exclamation, BoxButtons::Ok);
  }
}

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

// See LaterWindows.h.
#include "desktop/LaterWindows.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>
#include <QMessageBox>

#include "desktop/FrontWindow.h"

const OtherWindows* LaterWindows() {
  static const OtherWindows* loaded = nullptr;
  if (loaded != nullptr) return loaded;
  // Beside the program, or where it is installed.
  const QString program = QCoreApplication::applicationDirPath();
  QLibrary library(program + QLatin1String("/" FLUMEWISE_WINDOWS));
  if (!QFileInfo::exists(library.fileName()))
    library.setFileName(program + QLatin1String("/../" FLUMEWISE_LIBRARIES "/" FLUMEWISE_WINDOWS));
  library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
  loaded = reinterpret_cast<const OtherWindows*>(library.resolve("flumewiseWindows"));
  if (loaded == nullptr) {
    QMessageBox::warning(
        FrontWindow(), QObject::tr("Flumewise"),
        QObject::tr("A part of Flumewise is missing. Save your work, install Flumewise again and "
                    "start it anew.\n\n%1")
            .arg(library.errorString()));
  }
  return loaded;
}

namespace {

/// True when the service is there, now if not before.
template <class Service>
bool Load(std::unique_ptr<Service>& service, std::unique_ptr<Service> (*OtherWindows::*make)()) {
  if (service == nullptr) {
    if (const OtherWindows* const windows = LaterWindows()) service = (windows->*make)();
  }
  return service != nullptr;
}

}  // namespace

Printer* LaterPrinterDialog::Choose(const PrintRequest& request) {
  return Loaded() ? loaded_->Choose(request) : nullptr;
}

void LaterPrinterDialog::Preview(const PrintRequest& request, const std::function<void(Printer&)>& write) {
  if (Loaded()) loaded_->Preview(request, write);
}

bool LaterPrinterDialog::Loaded() {
  return Load(loaded_, &OtherWindows::Printers);
}

bool LaterHelpViewer::ShowContents() {
  return !Loaded() || loaded_->ShowContents();
}

bool LaterHelpViewer::ShowIndex() {
  return !Loaded() || loaded_->ShowIndex();
}

bool LaterHelpViewer::ShowPage(const std::string& page, const std::string& anchor) {
  return !Loaded() || loaded_->ShowPage(page, anchor);
}

void LaterHelpViewer::Close() {
  if (loaded_) loaded_->Close();
}

bool LaterHelpViewer::Loaded() {
  return Load(loaded_, &OtherWindows::Help);
}

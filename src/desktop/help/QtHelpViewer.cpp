// See QtHelpViewer.h.
#include "desktop/help/QtHelpViewer.h"

#include <QCoreApplication>

#include "desktop/kit/Text.h"
#include "desktop/kit/WindowPlace.h"
#include "help/HTMLHelp.h"

QStringList QtHelpViewer::Paths() {
  const QString program = QCoreApplication::applicationDirPath();
  const QLatin1String name(HTMLHelp::FileName);
  return {program + QLatin1Char('/') + name, program + QLatin1String("/../share/flumewise/") + name};
}

bool QtHelpViewer::HasWindow() {
  for (const QString& path : paths_) {
    if (window_) break;
    if (auto file = HelpFile::Open(path)) {
      window_ = std::make_unique<HelpWindow>(std::move(file));
      window_->setObjectName(QStringLiteral("help"));
      KeepPlace(*window_);
    }
  }
  return window_ != nullptr;
}

bool QtHelpViewer::ShowContents() {
  if (!HasWindow()) return false;
  window_->ShowContents();
  return true;
}

bool QtHelpViewer::ShowIndex() {
  if (!HasWindow()) return false;
  window_->ShowIndex();
  return true;
}

bool QtHelpViewer::ShowPage(const std::string& page, const std::string& anchor) {
  if (!HasWindow()) return false;
  window_->ShowPage(ToQt(page), ToQt(anchor));
  return true;
}

void QtHelpViewer::Close() {
  if (window_) window_->close();
}

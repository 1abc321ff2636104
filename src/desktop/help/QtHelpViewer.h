// The help window as a service: made when it is first needed.
#pragma once

#include <QStringList>
#include <memory>

#include "desktop/help/HelpWindow.h"
#include "platform/Services.h"

class QtHelpViewer : public HelpViewer {
 public:
  /// Takes the first of these files that is whole.
  explicit QtHelpViewer(QStringList paths) : paths_(std::move(paths)) {}
  /// Beside the program, or in the data folder of where it is installed.
  static QStringList Paths();

  bool ShowContents() override;
  bool ShowIndex() override;
  bool ShowPage(const std::string& page, const std::string& anchor) override;
  void Close() override;

  /// Null before it is needed.
  HelpWindow* Window() const { return window_.get(); }

 private:
  bool HasWindow();

  QStringList paths_;
  std::unique_ptr<HelpWindow> window_;  // hidden while it is closed, so that it keeps its place
};

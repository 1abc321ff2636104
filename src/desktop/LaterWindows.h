// The other windows of the program, loaded when the first of them is needed. See OtherWindows.h.
#pragma once

#include "desktop/OtherWindows.h"

/// Loads them when they are not yet. Where they cannot be, the person is told and it is null: Flumewise is
/// not installed whole, or another version was installed while this one runs.
const OtherWindows* LaterWindows();

class LaterPrinterDialog : public PrinterDialog {
 public:
  Printer* Choose(const PrintRequest& request) override;
  void Preview(const PrintRequest& request, const std::function<void(Printer&)>& write) override;

 private:
  bool Loaded();
  std::unique_ptr<PrinterDialog> loaded_;
};

/// Where help cannot be loaded the person has been told why, and no help file is blamed.
class LaterHelpViewer : public HelpViewer {
 public:
  bool ShowContents() override;
  bool ShowIndex() override;
  bool ShowPage(const std::string& page, const std::string& anchor) override;
  void Close() override;

 private:
  bool Loaded();
  std::unique_ptr<HelpViewer> loaded_;
};

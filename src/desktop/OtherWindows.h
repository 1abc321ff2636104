// All windows but the main one, with printing and help. They stand on libraries for charts, printing and help
// files; the program loads them when the first is needed, so that its main window need not wait for them.
#pragma once

#include <memory>

#include "platform/Services.h"

class QWidget;

struct OtherWindows {
  /// The view of a form that is not the main one.
  QWidget* (*View)(Form& form, QWidget* parent);
  std::unique_ptr<PrinterDialog> (*Printers)();
  std::unique_ptr<HelpViewer> (*Help)();
};

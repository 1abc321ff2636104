// The help file: opened at its contents, its index, or the page of the window that asks.
#pragma once

#include "platform/Form.h"

/// Each shows a message when there is no readable help file.
class HTMLHelp {
 public:
  /// Lies beside the program.
  static constexpr const char* FileName = "flumewise.chm";

  static void ShowContents();
  static void ShowIndex();
  /// The page of the form, at the control that has the keyboard.
  static void ShowFor(const Form& form);
  static void Close();
};

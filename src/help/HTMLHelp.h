// The help file: opened at its contents, its index, or the page of the window that asks.
#pragma once

#include "platform/Form.h"

/// Each opening tells in a message when there is no help file that can be read.
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

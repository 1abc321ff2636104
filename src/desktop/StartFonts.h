// The letters of the program, looked for while it starts.
#pragma once

#include <QString>
#include <future>

/// Reads the settings of the fonts, which the toolkit would do when it meets the first text, while the
/// display answers the application: the window shows a tenth sooner.
class StartFonts {
 public:
  StartFonts();

  /// Where the desktop names no family, gives the application the one that stands for any here. Once it is
  /// there, and before its first text.
  void Apply();

 private:
  std::future<QString> family_;
};

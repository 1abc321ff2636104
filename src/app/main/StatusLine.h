// The texts that share the status line of the main window.
#pragma once

#include <array>
#include <string>

class StatusLine {
 public:
  /// In the order of the line: the first that has a text, then the others.
  enum Part { FileError, NoResult, Moved, UnitRead, Done, Verdict };

  void Set(Part part, std::string text) { texts_.at(part) = std::move(text); }

  const std::string& At(Part part) const { return texts_.at(part); }

  /// An input has changed: messages about the previous step are obsolete.
  void Edited() {
    for (const Part part : {FileError, Moved, UnitRead, Done}) texts_.at(part).clear();
  }

  std::string Text() const {
    std::string line;
    for (const std::string& text : texts_) {
      if (!line.empty() && !text.empty()) line += ". ";
      line += text;
    }
    return line;
  }

 private:
  std::array<std::string, Verdict + 1> texts_;
};

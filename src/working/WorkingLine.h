// The lines of a working, as a window, a page, a file or the clipboard shows them.
#pragma once

#include <string>
#include <vector>

struct WorkingLine {
  enum class Kind {
    Heading,   ///< one part
    Result,    ///< symbol, formula, numbers put in, value with its unit; without those that there are not
    Fact,      ///< likewise, of what is given or only leads to a result
    Sentence,  ///< one part
    Note,      ///< what it says in short, at length, and its source
    Head,      ///< the heads of a table's columns
    Row,       ///< its cells
  };
  Kind Is;
  std::vector<std::string> Parts;  ///< exponents, and outside tables indices, marked as for TextRuns

  /// The line as text, its indices still marked: an equation with " = ", a row with TABs.
  std::string Text() const;
};

using WorkingLines = std::vector<WorkingLine>;

/// Heading of the notes, where the window opens when there are any.
inline constexpr const char* NotesHeading = "Notes";

/// A line each, a blank line above each heading; indices stand on the line.
std::string WorkingText(const WorkingLines& lines);

/// The body of a web page; a heading has itself as its id. No colours: those are the reader's.
std::string WorkingHtml(const WorkingLines& lines);

/// A whole web page under that title.
std::string WorkingPage(const WorkingLines& lines, const std::string& title);

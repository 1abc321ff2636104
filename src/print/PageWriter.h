// Writes a page from top to bottom: the head and foot that all pages share, and lines of text between them.
#pragma once

#include <string>

#include "app/main/frmMain.h"
#include "platform/Services.h"

/// Positions on the page, in twips.
namespace Layout {

inline constexpr int LeftMargin = 1152;
inline constexpr int RightMargin = 1872;
inline constexpr int BodyTop = 2008;
inline constexpr int FooterRule = 1808;  ///< above the bottom edge
inline constexpr int TabStep = 720;

/// x of tab stop `stop`.
constexpr int Tab(int stop) {
  return LeftMargin + TabStep * stop;
}

}  // namespace Layout

class PageWriter {
 public:
  /// Begins with the head of the first page.
  PageWriter(Printer& printer, const frmMain& main);

  void SetFont(const PrintFont& font);
  /// Prints from the current line on, and stays on it, at most up to `right`; returns the lines it took.
  int Cell(int x, int right, const std::string& text, PrintedAs as = PrintedAs::Value);
  void EndLine(int lines = 1) { y_ += lines * font_.LineHeight(); }

  int Y() const { return y_; }
  void MoveTo(int y) { y_ = y; }
  /// Right edge of what is printed.
  int Right() const { return printer_.PageWidth() - Layout::RightMargin; }
  /// The number of tab stops on the paper, its margin included.
  int TabStops() const { return (printer_.PageWidth() - Layout::LeftMargin) / Layout::TabStep; }
  int FooterRule() const { return printer_.PageHeight() - Layout::FooterRule; }
  /// True when so many lines do not fit above the footer, and another page has more room for them.
  bool IsFull(int lines) const;

  void Footer();
  /// Footer, new page and its head; the body goes on at its top in a font to be set.
  void NextPage();

 private:
  void Header();
  void Line(const std::string& text, PrintedAs as = PrintedAs::Value);

  Printer& printer_;
  const frmMain& main_;
  PrintFont font_;
  int y_ = 0;
};

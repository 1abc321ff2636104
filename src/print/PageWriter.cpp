// See PageWriter.h.
#include "print/PageWriter.h"

#include "app/Declarations.h"
#include "engine/ChannelState.h"

namespace {

constexpr int TitleTop = 1008;
constexpr int FooterText = Layout::FooterRule - 100;
constexpr int RuleWidth = 3;
constexpr int CellGap = 60;  // so that a condensed text does not touch its neighbour

constexpr PrintFont TitleFont{"Arial", 12, true};
constexpr PrintFont FooterFont{"Arial", 8, false, true};

}  // namespace

PageWriter::PageWriter(Printer& printer, const frmMain& main) : printer_(printer), main_(main) {
  Header();
}

void PageWriter::SetFont(const PrintFont& font) {
  font_ = font;
  printer_.SetFont(font);
}

int PageWriter::Cell(int x, int right, const std::string& text, PrintedAs as) {
  return printer_.Text(x, y_, text, right - x - CellGap, as);
}

void PageWriter::Line(const std::string& text, PrintedAs as) {
  EndLine(Cell(Layout::LeftMargin, Right(), text, as));
}

bool PageWriter::IsFull(int lines) const {
  return y_ + lines * font_.LineHeight() > FooterRule() && y_ > Layout::BodyTop;
}

void PageWriter::Header() {
  SetFont(TitleFont);
  MoveTo(TitleTop);
  Line(main_.tbProjName.Text, PrintedAs::Name);
  Line("Manning's Equation - " + ChannelState.ChannelType);
  MoveTo(Layout::BodyTop);
}

void PageWriter::Footer() {
  SetFont(FooterFont);
  printer_.Line(Layout::LeftMargin, FooterRule(), Right(), FooterRule(), RuleWidth);
  MoveTo(printer_.PageHeight() - FooterText);
  Line(Declarations::FilePath + "    " + TheServices().clock.ShortDate(), PrintedAs::FilePath);
  Line(std::string("v") + VersionName);
}

void PageWriter::NextPage() {
  Footer();
  printer_.NewPage();
  Header();
}

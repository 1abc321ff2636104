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

// Arial's own line spacing is 1.15 of its size; 20 twips are a point.
int PageWriter::LineHeight() const {
  return font_.Size * 20 * 115 / 100;
}

void PageWriter::Cell(int x, int right, const std::string& text) {
  printer_.Text(x, y_, text, right - x - CellGap);
}

void PageWriter::Line(const std::string& text) {
  Cell(Layout::LeftMargin, Right(), text);
  EndLine();
}

bool PageWriter::IsFull(int lines) const {
  return y_ + lines * LineHeight() > FooterRule() && y_ > Layout::BodyTop;
}

void PageWriter::Header() {
  SetFont(TitleFont);
  MoveTo(TitleTop);
  Line(main_.tbProjName.Text);
  Line("Manning's Equation - " + ChannelState.ChannelType);
  MoveTo(Layout::BodyTop);
}

void PageWriter::Footer() {
  SetFont(FooterFont);
  printer_.Line(Layout::LeftMargin, FooterRule(), Right(), FooterRule(), RuleWidth);
  MoveTo(printer_.PageHeight() - FooterText);
  Line(Declarations::FilePath + "    " + TheServices().clock.ShortDate());
  Line(std::string("v") + VersionName);
}

void PageWriter::NextPage() {
  Footer();
  printer_.NewPage();
  Header();
}

// See WorkingPages.h.
#include "working/WorkingPages.h"

#include <algorithm>

#include "print/PageWriter.h"

namespace {

constexpr PrintFont HeadingFont{"Arial", 10, true};
constexpr PrintFont BodyFont{"Arial", 9};
constexpr int Indent = 360;           // of what continues a line (twips)
constexpr int TwipsOfCharacter = 90;  // of the body font, half its size on average
constexpr int FewestCellTwips = 1000;

using Kind = WorkingLine::Kind;

std::size_t Characters(std::string_view text) {
  return static_cast<std::size_t>(
      std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

class Writer {
 public:
  Writer(PageWriter& page, const WorkingLines& lines) : page_(page), lines_(lines) {}

  void Write() {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      const WorkingLine& line = lines_[i];
      if (line.Is == Kind::Heading) {
        Heading(line, i + 1 < lines_.size());
      } else if (line.Is == Kind::Head || line.Is == Kind::Row) {
        if (line.Is == Kind::Head) heads_ = &line;
        TableLine(line);
      } else {
        Wrapped(Printed(line));
      }
    }
  }

 private:
  void Heading(const WorkingLine& line, bool more) {
    if (page_.Y() > Layout::BodyTop) page_.EndLine();
    if (page_.IsFull(more ? 3 : 2)) page_.NextPage();
    page_.SetFont(HeadingFont);
    page_.Cell(Layout::LeftMargin, page_.Right(), line.Parts[0]);
    page_.EndLine();
    page_.SetFont(BodyFont);
  }

  void Room(bool inTable) {
    if (!page_.IsFull(1)) return;
    page_.NextPage();
    page_.SetFont(BodyFont);
    if (inTable && heads_ != nullptr) Cells(*heads_);
  }

  void TableLine(const WorkingLine& line) {
    Room(line.Is == Kind::Row);
    Cells(line);
  }

  void Cells(const WorkingLine& line) {
    const int room = page_.Right() - Layout::LeftMargin;
    const int width = std::max(room / static_cast<int>(line.Parts.size()), FewestCellTwips);
    int x = Layout::LeftMargin;
    for (const std::string& part : line.Parts) {
      page_.Cell(x, std::min(x + width, page_.Right()), part);
      x += width;
    }
    page_.EndLine();
  }

  /// A value stays on one line with its unit.
  static std::string Printed(const WorkingLine& line) {
    WorkingLine printed = line;
    if (line.Is != Kind::Result) return line.Text();
    std::string& value = printed.Parts.back();
    for (std::size_t at = value.find(' '); at != std::string::npos; at = value.find(' ', at)) {
      value.replace(at, 1, "\u00A0");
    }
    return printed.Text();
  }

  /// Breaks between words where the line would pass the margin; the printer condenses what the estimate
  /// misses.
  void Wrapped(std::string_view text) {
    int x = Layout::LeftMargin;
    while (!text.empty()) {
      const std::string line =
          FirstWords(text, static_cast<std::size_t>((page_.Right() - x) / TwipsOfCharacter));
      text.remove_prefix(std::min(text.size(), line.size() + 1));
      Room(false);
      page_.Cell(x, page_.Right(), line);
      page_.EndLine();
      x = Layout::LeftMargin + Indent;
    }
  }

  static std::string FirstWords(std::string_view text, std::size_t most) {
    std::size_t end = text.find(' ');
    while (end != std::string_view::npos) {
      const std::size_t next = text.find(' ', end + 1);
      if (Characters(text.substr(0, next)) > most) break;
      end = next;
    }
    return std::string(text.substr(0, end));
  }

  PageWriter& page_;
  const WorkingLines& lines_;
  const WorkingLine* heads_ = nullptr;
};

}  // namespace

void AppendWorking(PageWriter& page, const WorkingLines& lines) {
  page.SetFont(BodyFont);
  Writer(page, lines).Write();
}

Print::Document WorkingPages(const frmMain& main, const WorkingLines& lines) {
  return {[&main, &lines](Printer& printer) {
    PageWriter page(printer, main);
    AppendWorking(page, lines);
    Print::End(page, printer);
  }};
}

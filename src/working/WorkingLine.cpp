// See WorkingLine.h.
#include "working/WorkingLine.h"

#include <string_view>
#include <utility>

#include "platform/TextRuns.h"

namespace {

using Kind = WorkingLine::Kind;

std::string Joined(const std::vector<std::string>& parts, const char* separator) {
  std::string text;
  for (const std::string& part : parts) {
    if (&part != &parts.front()) text += separator;
    text += part;
  }
  return text;
}

bool IsOfTable(const WorkingLine& line) {
  return line.Is == Kind::Head || line.Is == Kind::Row;
}

std::string Escaped(std::string_view text) {
  std::string html;
  for (const char c : text) {
    if (c == '&') {
      html += "&amp;";
    } else if (c == '<') {
      html += "&lt;";
    } else {
      html += c;
    }
  }
  return html;
}

/// Escaped, with raised exponents, and with lowered indices but in what may be a name ("Reach A_1").
std::string Marked(std::string_view text, bool mayBeName = false) {
  constexpr std::pair<const char*, const char*> Elements[] = {
      {"<sup>", "</sup>"}, {"", ""}, {"<sub>", "</sub>"}};
  std::string html;
  for (const TextRun& run : TextRuns(text)) {
    if (mayBeName && run.At == TextRun::Level::Lowered) {
      html += "_" + Escaped(run.Text);
      continue;
    }
    const auto& [open, close] = Elements[static_cast<std::size_t>(run.At)];
    html += open + Escaped(run.Text) + close;
  }
  return html;
}

std::string Cells(const std::vector<std::string>& parts, const std::string& element) {
  std::string html = "<tr>";
  for (const std::string& part : parts)
    html += "<" + element + ">" + Marked(part, true) + "</" + element + ">";
  return html + "</tr>\n";
}

std::string EquationHtml(const std::vector<std::string>& parts, bool isResult) {
  std::string html = "<p class=\"equation\">" + Marked(parts.front());
  for (std::size_t i = 1; i < parts.size(); ++i) {
    const bool bold = isResult && i + 1 == parts.size();
    html += (bold ? " = <b>" : " = ") + Marked(parts[i]) + (bold ? "</b>" : "");
  }
  return html + "</p>\n";
}

std::string NoteHtml(const std::vector<std::string>& parts) {
  return "<p class=\"note\"><b>" + Marked(parts[0]) + ".</b> " + Marked(parts[1]) + " <i>" +
         Marked(parts[2]) + ".</i></p>\n";
}

std::string LineHtml(const WorkingLine& line) {
  switch (line.Is) {
    case Kind::Heading:
      return "<h2>" + Escaped(line.Parts[0]) + "</h2>\n";
    case Kind::Result:
    case Kind::Fact:
      return EquationHtml(line.Parts, line.Is == Kind::Result);
    case Kind::Sentence:
      return "<p>" + Marked(line.Parts[0]) + "</p>\n";
    case Kind::Note:
      return NoteHtml(line.Parts);
    case Kind::Head:
      return Cells(line.Parts, "th");
    case Kind::Row:
      return Cells(line.Parts, "td");
  }
  return "";
}

}  // namespace

std::string WorkingLine::Text() const {
  if (Is == Kind::Note) return Parts[0] + ". " + Parts[1] + " (" + Parts[2] + ")";
  return Joined(Parts, IsOfTable(*this) ? "\t" : " = ");
}

std::string WorkingText(const WorkingLines& lines) {
  std::string text;
  for (const WorkingLine& line : lines) {
    if (line.Is == Kind::Heading && !text.empty()) text += '\n';
    text += (IsOfTable(line) ? line.Text() : WithoutIndices(line.Text())) + '\n';
  }
  return text;
}

std::string WorkingHtml(const WorkingLines& lines) {
  std::string html;
  bool inTable = false;
  for (const WorkingLine& line : lines) {
    const bool ofTable = IsOfTable(line);
    if (inTable && (!ofTable || line.Is == Kind::Head)) html += "</table>\n";
    if (line.Is == Kind::Head) html += "<table cellpadding=\"3\">\n";
    html += LineHtml(line);
    inTable = ofTable;
  }
  return html + (inTable ? "</table>\n" : "");
}

std::string WorkingPage(const WorkingLines& lines, const std::string& title) {
  return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" + Escaped(title) +
         "</title>\n<style>th, td { padding: 0 1em 0 0; text-align: left }</style>\n</head>\n<body>\n<h1>" +
         Escaped(title) + "</h1>\n" + WorkingHtml(lines) + "</body>\n</html>\n";
}

// See WorkingLine.h.
#include "working/WorkingLine.h"

#include <string_view>

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

/// Escaped, and "R^(2/3)" and "m^3" with raised exponents.
std::string Raised(std::string_view text) {
  std::string html;
  for (;;) {
    const std::size_t caret = text.find('^');
    html += Escaped(text.substr(0, caret));
    if (caret == std::string_view::npos) return html;
    text.remove_prefix(caret + 1);
    const bool bracketed = text.starts_with('(');
    const std::size_t end = bracketed ? text.find(')') : text.find_first_not_of("0123456789.");
    html += "<sup>" + Escaped(text.substr(bracketed, end - bracketed)) + "</sup>";
    if (end == std::string_view::npos) return html;
    text.remove_prefix(end + bracketed);
  }
}

std::string Cells(const std::vector<std::string>& parts, const std::string& element) {
  std::string html = "<tr>";
  for (const std::string& part : parts) html += "<" + element + ">" + Raised(part) + "</" + element + ">";
  return html + "</tr>\n";
}

std::string EquationHtml(const std::vector<std::string>& parts) {
  std::string html = "<p><b>" + Raised(parts.front()) + "</b>";
  for (std::size_t i = 1; i < parts.size(); ++i) {
    const bool last = i + 1 == parts.size();
    html += (last ? " = <b>" : " = ") + Raised(parts[i]) + (last ? "</b>" : "");
  }
  return html + "</p>\n";
}

std::string LineHtml(const WorkingLine& line) {
  switch (line.Is) {
    case Kind::Heading:
      return "<h2><a name=\"" + Escaped(line.Parts[0]) + "\"></a>" + Escaped(line.Parts[0]) + "</h2>\n";
    case Kind::Equation:
      return EquationHtml(line.Parts);
    case Kind::Sentence:
      return "<p>" + Raised(line.Parts[0]) + "</p>\n";
    case Kind::Head:
      return Cells(line.Parts, "th");
    case Kind::Row:
      return Cells(line.Parts, "td");
  }
  return "";
}

}  // namespace

std::string WorkingLine::Text() const {
  return Joined(Parts, Is == Kind::Head || Is == Kind::Row ? "\t" : " = ");
}

std::string WorkingText(const WorkingLines& lines) {
  std::string text;
  for (const WorkingLine& line : lines) {
    if (line.Is == Kind::Heading && !text.empty()) text += '\n';
    text += line.Text() + '\n';
  }
  return text;
}

std::string WorkingHtml(const WorkingLines& lines) {
  std::string html;
  bool inTable = false;
  for (const WorkingLine& line : lines) {
    const bool ofTable = line.Is == Kind::Head || line.Is == Kind::Row;
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

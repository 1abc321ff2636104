// See Csv.h.
#include "batch/Csv.h"

#include <algorithm>
#include <stdexcept>

#include "app/project/ProjectItems.h"
#include "files/TextEncoding.h"
#include "files/WholeFile.h"

namespace Batch {

namespace {

constexpr std::size_t LargestFile = std::size_t{1} << 30;

std::vector<std::string> FieldsOf(std::string_view row) {
  std::vector<std::string> fields(1);
  bool quoted = false;
  for (std::size_t at = 0; at < row.size(); ++at) {
    const char c = row[at];
    if (c == '"') {
      const bool doubled = quoted && at + 1 < row.size() && row[at + 1] == '"';
      if (doubled) {
        fields.back() += row[++at];
      } else {
        quoted = !quoted;
      }
    } else if (c == ',' && !quoted) {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  return fields;
}

}  // namespace

Csv::Csv(const std::string& path) : text_(DecodedText(WholeFile::Read(path, LargestFile))) {
  std::size_t number = 0;
  for (std::size_t at = 0; at < text_.size();) {
    bool quoted = false;
    std::size_t end = at;
    for (; end < text_.size() && (quoted || text_[end] != '\n'); ++end)
      quoted = quoted != (text_[end] == '"');
    if (quoted)
      throw std::runtime_error("row " + std::to_string(number + 1) + ": a text without its closing quote");
    ++number;
    std::size_t length = end - at;
    while (length > 0 && text_[at + length - 1] == '\r') --length;
    if (length > 0) rows_.push_back({number, at, length});
    at = end + 1;
  }
  if (rows_.empty()) throw std::runtime_error("the file is empty");
  head_ = FieldsOf(0);
  rows_.erase(rows_.begin());
}

std::vector<std::string> Csv::FieldsOf(std::size_t row) const {
  return Batch::FieldsOf(std::string_view(text_).substr(rows_[row].First, rows_[row].Length));
}

std::string CsvField(const std::string& text) {
  const auto must = [](char c) { return c == ',' || c == '"' || c == '\r' || c == '\n'; };
  return std::ranges::any_of(text, must) ? ProjectItems::Quoted(text) : text;
}

}  // namespace Batch

// Comma-separated values as RFC 4180 describes them, but for line ends, which may be LF too.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Batch {

/// A sheet: a head, and rows that are taken apart when they are asked for.
class Csv {
 public:
  /// Reads a file of at most 1 GiB. std::runtime_error when it cannot be read, when it is empty, or when a
  /// quotation mark is not closed.
  explicit Csv(const std::string& path);

  const std::vector<std::string>& Head() const { return head_; }
  std::size_t RowCount() const { return rows_.size(); }
  /// As a spreadsheet counts: the head is row 1.
  std::size_t NumberOf(std::size_t row) const { return rows_[row].Number; }
  std::vector<std::string> FieldsOf(std::size_t row) const;

 private:
  struct Row {
    std::size_t Number, First, Length;  // of its text
  };
  std::string text_;
  std::vector<Row> rows_;
  std::vector<std::string> head_;
};

/// A field of a row: in quotes where it must be.
std::string CsvField(const std::string& text);

}  // namespace Batch

// The text of a survey as rows of fields: the separator, quotes, comments and heads that spreadsheets and
// survey programs write.
#pragma once

#include <memory>
#include <optional>
#include <span>

#include "section/Survey.h"

namespace Survey {

/// The largest file that is read, 64 MiB: twice the half a million points of a long scan.
inline constexpr std::size_t MaxBytes = std::size_t{64} << 20;

/// The bytes of a file or a clipboard as UTF-8: UTF-16 with a byte order mark, UTF-8, else Windows-1252.
std::shared_ptr<const std::string> SurveyText(std::string_view bytes);

/// The separator of a sheet whose fields stand apart by any number of blanks and TABs.
inline constexpr char Blanks = ' ';

struct Sheet {
  struct Row {
    std::size_t Line, First, Count;
  };
  std::shared_ptr<const std::string> Text;  ///< that the fields are parts of
  char Separator = ',';
  std::vector<std::string> Head;  ///< captions of all columns; empty without a head
  std::vector<Row> Rows;          ///< that hold data, in their order
  std::vector<std::string_view> Fields;
  std::size_t Columns = 0;         ///< of the widest row, or of the head
  std::vector<std::string> Notes;  ///< what was left out, in sentences

  std::span<const std::string_view> FieldsOf(const Row& row) const {
    return std::span(Fields).subspan(row.First, row.Count);
  }
  /// Empty where the row is shorter.
  std::string_view Field(const Row& row, std::size_t column) const {
    return column < row.Count ? Fields[row.First + column] : std::string_view();
  }
};

/// The rows of a text. Without a separator the text as a whole shows which it is: TAB, else semicolon, else
/// of comma and blanks the one that leaves more numbers. Lines that begin with # are comments; of the lines
/// without a number at the start the last is the head. std::runtime_error where a quotation mark is not
/// closed, where there are no data, and where a number stands behind the last column of the head.
Sheet ReadSheet(std::shared_ptr<const std::string> text, std::optional<char> separator, const Watch& watch);

/// True for a field that the user would take for a number, well written or not.
bool BeginsLikeNumber(std::string_view field);

/// Without blanks, TABs and no-break spaces around it.
std::string_view Trimmed(std::string_view text);

/// The next line of a text, without its end; the text is shortened by it. Lines end with CR, LF or both.
std::string_view TakeLine(std::string_view& text);

}  // namespace Survey

// A survey being imported: what its file holds, what the user chose, and the section that comes of it.
#pragma once

#include "section/Mending.h"
#include "section/Spelling.h"

namespace Survey {

/// The unit of length of what is being imported.
struct FileUnit {
  std::optional<LengthUnit> X, Z;    ///< as the file names it
  std::optional<LengthUnit> Chosen;  ///< by the user
  bool Asked = false;                ///< the format has one, and the file does not name it
  bool Named() const { return X || Z; }
};

class Import {
 public:
  /// Reads a file or a clipboard. Where the file holds several sections the first is chosen.
  /// std::runtime_error with the line and the reason where nothing can be read at all; what `watch` throws
  /// passes through.
  Import(std::string_view bytes, int unitSystem, const Watch& watch);

  // What the file holds: the sections of a model, or a sheet.
  const std::vector<Section>& Sections() const { return sections_; }
  const Sheet& TheSheet() const { return sheet_; }
  const Columns& TheColumns() const { return columns_; }
  const Sign& TheSign() const { return sign_; }
  const FileUnit& TheUnit() const { return unit_; }
  std::size_t ChosenSection() const { return chosen_; }
  /// What was left out while reading, in sentences.
  std::vector<std::string> Notes() const;

  // What the user chooses. Each works out the result anew. A separator that leaves no sheet is said as the
  // reason.
  void ChooseSection(std::size_t index);
  void ChooseSeparator(char separator);
  void ChooseSign(const NumberLocale& spelling);
  void ChooseColumns(const Columns& columns);
  /// Nothing: as the file names it.
  void ChooseUnit(std::optional<LengthUnit> unit);
  void ChooseFrontN(std::optional<Number> n);
  void Switch(Kind kind, bool on);

  // The result.
  const std::vector<Point>& Before() const { return before_; }
  const Mended& Result() const { return result_; }

 private:
  void ReadColumns(std::optional<char> separator);
  void Update();
  /// No section, for this reason.
  void Give(const std::string& reason);
  Section Chosen(const Watch& watch) const;
  /// The columns in another order than by place, as a change that can be left out.
  std::optional<Change> ColumnsChange();

  Watch watch_;
  std::shared_ptr<const std::string> text_;
  std::vector<Section> sections_;
  std::size_t chosen_ = 0;
  Sheet sheet_;
  Columns columns_, byHead_, byPlace_;
  Sign sign_;
  FileUnit unit_;
  Terms terms_;
  std::vector<Point> before_;
  std::vector<std::string> notes_;  // of the section chosen
  Mended result_;
};

}  // namespace Survey

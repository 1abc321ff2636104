// What must hold for any text pasted into the point table or imported as points; shared by the fuzzer and by
// the test that replays its corpus.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/NumberText.h"
#include "platform/FlexGrid.h"
#include "section/Import.h"
#include "section/IrregTable.h"
#include "section/PointsCsv.h"

namespace PointsRoundTrip {

using IrregTable::Table;

inline const std::array<NumberLocale, 4> Locales = {{{".", ","}, {",", "."}, {",", "\u202F"}, {".", "'"}}};

inline std::optional<Survey::Import> ImportedOrNothing(const std::string& bytes) {
  try {
    return Survey::Import(bytes, static_cast<int>(bytes.size() % 2), [](double) {});
  } catch (const std::runtime_error& refusal) {
    if (std::string(refusal.what()).empty()) throw std::logic_error("refused without a word");
    return std::nullopt;
  }
}

/// Both tables hold the same numbers, and texts where they hold none.
inline bool SameNumbers(const Table& a, const Table& b) {
  for (std::size_t row = 1; row < a.size(); ++row) {
    for (std::size_t column = 1; column < a[row].size(); ++column) {
      if (NumericValue(a[row][column]) != NumericValue(b[row][column])) return false;
    }
  }
  return true;
}

/// An accepted table comes back from its export. An n behind the last point is no part of the section.
inline bool ComesBack(Table table) {
  if (IrregTable::CheckTable(table)) return true;
  for (int row = IrregTable::PointCount(table) + 1; row <= IrregTable::Rows; ++row)
    table[static_cast<std::size_t>(row)] = {};
  const std::string exported = PointsCsv::Format(table, "ft", "points");
  Survey::Import again(exported, 0, [](double) {});
  for (const Survey::Kind kind : {Survey::Kind::StrangeN, Survey::Kind::RepeatedN}) {
    if (std::ranges::count(again.Result().Changes, kind, &Survey::Change::What) > 0)
      again.Switch(kind, false);
  }
  return SameNumbers(table, again.Result().Table) &&
         PointsCsv::Format(again.Result().Table, "ft", "points") == exported;
}

/// One choice that the person can make, by its number.
inline void Choose(Survey::Import& import, unsigned char choice) {
  const std::size_t sections = import.Sections().size();
  if (choice < 2 * Survey::KindCount)
    return import.Switch(static_cast<Survey::Kind>(choice / 2), choice % 2 == 0);
  if (choice % 2 == 0) return import.ChooseFrontN(Survey::Number{0.03, {}});
  if (choice % 3 == 0) return import.ChooseUnit(choice < 128 ? Survey::Feet() : Survey::Metres());
  if (sections > 0) return import.ChooseSection(choice % sections);
  if (choice % 5 == 0) return import.ChooseSeparator(";,\t "[choice % 4]);
  if (choice % 7 == 0) return import.ChooseSign(Survey::DecimalComma);
  Survey::Columns columns = import.TheColumns();
  std::rotate(columns.Roles.begin(), columns.Roles.begin() + choice % 2, columns.Roles.end());
  import.ChooseColumns(columns);
}

/// A table without a reason against it is accepted, and any other has one, whatever the person chooses: the
/// text itself says what.
inline bool ImportHolds(const std::string& bytes) {
  auto import = ImportedOrNothing(bytes);
  if (!import) return true;
  const std::size_t choices = std::min<std::size_t>(bytes.size(), bytes.size() % 4);
  for (std::size_t i = 0; i < choices; ++i)
    Choose(*import, static_cast<unsigned char>(bytes[bytes.size() - 1 - i]));
  const Survey::Mended& result = import->Result();
  if (!result.Reason.empty()) return true;
  return !IrregTable::CheckTable(result.Table) && ComesBack(result.Table);
}

/// Pastes the text into a grid of dots, from its second row on; only the block may change, and what is copied
/// from there pastes back as it is.
inline bool PasteHolds(const std::string& text, Table& pasted) {
  Form form("form");
  FlexGrid grid(&form, "grid");
  grid.Load(std::vector<std::vector<std::string>>(IrregTable::Rows + 1, {"#", ".", ".", "."}), 4);
  const GridBlock block{2, 1, 90, 2 + static_cast<int>(text.size() % 2)};
  grid.Selection = block;
  grid.SetClip(text);
  const std::string copied = grid.Clip();
  grid.SetClip(copied);
  bool holds = grid.Clip() == copied && SizeOfClip(text).Rows > 0 && SizeOfClip(text).Cols > 0;
  for (int row = 0; row < grid.Rows(); ++row) {
    for (int col = 1; col < grid.Cols(); ++col) {
      const bool inside = row >= block.Row && row <= block.RowSel && col <= block.ColSel;
      if (!inside && grid.Text(row, col) != ".") holds = false;
      if (inside && grid.Text(row, col) != ".")
        pasted[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(col)] = grid.Text(row, col);
    }
  }
  return holds;
}

inline bool PasteComesBack(const std::string& text) {
  Table pasted;
  return PasteHolds(text, pasted) && ComesBack(pasted);
}

/// Whatever the text, as a file or as a clipboard: ImportHolds or PasteComesBack.
inline bool Holds(bool (*as)(const std::string&), const std::string& bytes, const NumberLocale& locale) {
  SetNumberLocale(locale);
  const bool holds = as(bytes);
  SetNumberLocale({});
  return holds;
}

}  // namespace PointsRoundTrip

// See frmTable.h.
#include "rating/frmTable.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "app/ExportFile.h"
#include "platform/Services.h"
#include "print/Print.h"
#include "rating/RatingColumn.h"
#include "rating/RatingSeries.h"
#include "rating/frmTableSettings.h"

namespace {

constexpr int LeadingWidth = 200;  // twips
constexpr int ColumnWidth = 1200;

/// Added-up steps miss a number by a rounding.
bool IsSame(double x, double typed) {
  return std::abs(x - typed) <= 1e-9 * std::abs(typed);
}

template <class Text>
std::vector<std::string> Row(const RatingColumns& columns, Text text) {
  std::vector<std::string> row(columns.size());
  for (std::size_t i = 1; i < columns.size(); ++i) row[i] = std::invoke(text, columns[i]);
  return row;
}

}  // namespace

frmTable::frmTable(const frmMain& main) : RatingWindow("frmTable", main) {
  mnuViewHideConstant.Caption = "Hide Constant Columns";
  mnuViewHideConstant.Click = [this] { mnuViewHideConstant_Click(); };
  lblHidden.Visible = false;
}

bool frmTable::LoadSeries() {
  return LoadTable();
}

void frmTable::ShowSettings() {
  frmTableSettings settings;
  TheServices().windows.ShowModal(settings);
}

bool frmTable::LoadTable() {
  RatingColumns columns = CurrentRatingColumns();
  Grid rows;
  std::vector<RatingNumbers> numbers;
  const Field* const varied = FindVariedInput(RatingRange.VaryCode);
  const double typed = varied == nullptr ? 0 : (ChannelState.*varied->Cell).Number();
  int typedRow = 0;
  rows.push_back(Row(columns, [](const RatingColumn& column) { return column.Header(); }));
  const RatingOutcome outcome = RunRatingSeries(main_, RatingRange, LastValue::Snapped, [&](int row) {
    RatingNumbers unrounded(columns.size());
    std::ranges::transform(columns, unrounded.begin(), &RatingColumn::Number);
    rows.push_back(Row(columns, &RatingColumn::Text));
    numbers.push_back(std::move(unrounded));
    if (varied != nullptr && IsSame((ChannelState.*varied->Cell).Number(), typed)) typedRow = row;
  });
  if (outcome.Cancelled) return false;
  HideConstants(columns, rows, numbers);
  std::vector<int> widths(columns.size(), ColumnWidth);
  widths[0] = LeadingWidth;
  MSFlexGrid1.ColWidths = widths;
  const bool anyRow = rows.size() > 1;
  MSFlexGrid1.MarkedRow = typedRow;
  MSFlexGrid1.Load(std::move(rows), static_cast<int>(columns.size()));
  ShowMissing(outcome.Gaps.Text(outcome.Points), anyRow);
  columns_ = std::move(columns);
  numbers_ = std::move(numbers);
  return true;
}

void frmTable::HideConstants(RatingColumns& columns, Grid& rows, std::vector<RatingNumbers>& numbers) {
  std::string hidden;
  const bool hides = mnuViewHideConstant.Checked && numbers.size() > 1;
  for (std::size_t column = columns.size(); hides && column-- > 1;) {
    const auto isFirst = [&](const RatingNumbers& row) { return row[column] == numbers[0][column]; };
    if (!std::ranges::all_of(numbers, isFirst)) continue;
    const auto erase = [column](auto& cells) {
      cells.erase(cells.begin() + static_cast<std::ptrdiff_t>(column));
    };
    if (columns[column].Cell != nullptr) {
      const std::string named = columns[column].NameAndValue(rows[1][column]);
      hidden = hidden.empty() ? named : named + "; " + hidden;
    }
    erase(columns);
    std::ranges::for_each(rows, erase);
    std::ranges::for_each(numbers, erase);
  }
  lblHidden.Caption = hidden.empty() ? "" : "The same in every row and hidden: " + hidden;
  lblHidden.Visible = !hidden.empty();
}

void frmTable::mnuViewHideConstant_Click() {
  mnuViewHideConstant.Checked = !mnuViewHideConstant.Checked;
  if (!LoadTable()) mnuViewHideConstant.Checked = !mnuViewHideConstant.Checked;
}

void frmTable::mnuEditCopy_Click() {
  const GridBlock& block = MSFlexGrid1.Selection;
  std::string text;
  for (int column = block.Left(); column <= block.Right(); ++column) {
    if (column > block.Left()) text += '\t';
    text += MSFlexGrid1.Text(0, column);
  }
  Clipboard& clipboard = TheServices().clipboard;
  clipboard.Clear();
  clipboard.SetText(text + '\r' + MSFlexGrid1.Clip());
}

void frmTable::mnuPrint_Click() {
  Print::ToPrinter(Print::Table(main_, MSFlexGrid1, lblHidden.Caption));
}

void frmTable::mnuPrintPreview_Click() {
  Print::ToPreview(Print::Table(main_, MSFlexGrid1, lblHidden.Caption));
}

void frmTable::mnuFileExport_Click() {
  ExportFile({"Export Table", "Comma-Separated Values (*.csv)|*.csv|All Files (*.*)|*.*", "csv"},
             [this](const std::string&) { return RatingTableAsCsv(columns_, numbers_); });
}

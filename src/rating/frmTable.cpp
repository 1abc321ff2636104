// See frmTable.h.
#include "rating/frmTable.h"

#include <algorithm>
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

template <class Text>
std::vector<std::string> Row(const RatingColumns& columns, Text text) {
  std::vector<std::string> row(columns.size());
  for (std::size_t i = 1; i < columns.size(); ++i) row[i] = std::invoke(text, columns[i]);
  return row;
}

}  // namespace

frmTable::frmTable(const frmMain& main) : RatingWindow("frmTable", main) {}

bool frmTable::LoadSeries() {
  return LoadTable();
}

void frmTable::ShowSettings() {
  frmTableSettings settings;
  TheServices().windows.ShowModal(settings);
}

bool frmTable::LoadTable() {
  const RatingColumns columns = CurrentRatingColumns();
  std::vector<std::vector<std::string>> rows;
  std::vector<RatingNumbers> numbers;
  rows.push_back(Row(columns, [](const RatingColumn& column) { return column.Header(); }));
  const RatingOutcome outcome = RunRatingSeries(main_, RatingRange, LastValue::Snapped, [&](int) {
    RatingNumbers unrounded(columns.size());
    std::ranges::transform(columns, unrounded.begin(), &RatingColumn::Number);
    rows.push_back(Row(columns, &RatingColumn::Text));
    numbers.push_back(std::move(unrounded));
  });
  if (outcome.Cancelled) return false;
  std::vector<int> widths(columns.size(), ColumnWidth);
  widths[0] = LeadingWidth;
  MSFlexGrid1.ColWidths = widths;
  const bool anyRow = rows.size() > 1;
  MSFlexGrid1.Load(std::move(rows), static_cast<int>(columns.size()));
  ShowMissing(outcome.Gaps.Text(outcome.Points), anyRow);
  numbers_ = std::move(numbers);
  return true;
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
  Print::ToPrinter(Print::Table(main_, MSFlexGrid1));
}

void frmTable::mnuPrintPreview_Click() {
  Print::ToPreview(Print::Table(main_, MSFlexGrid1));
}

void frmTable::mnuFileExport_Click() {
  ExportFile({"Export Table", "Comma-Separated Values (*.csv)|*.csv|All Files (*.*)|*.*", "csv"},
             [this](const std::string&) { return RatingTableAsCsv(numbers_); });
}

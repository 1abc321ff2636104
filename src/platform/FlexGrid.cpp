// See FlexGrid.h.
#include "platform/FlexGrid.h"

#include <algorithm>

namespace {

/// The part of `text` up to the first `separator`, which is cut off with it.
std::string_view TakePart(std::string_view& text, char separator) {
  const std::size_t end = text.find(separator);
  const std::string_view part = text.substr(0, end);
  text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  return part;
}

}  // namespace

void FlexGrid::Load(std::vector<std::vector<std::string>> rows, int cols) {
  cells_ = std::move(rows);
  for (auto& row : cells_) row.resize(Index(cols));
  cols_ = cols;
  if (LoadView) LoadView();
  SelectCell(Rows() > 1 ? 1 : 0, cols > 1 ? 1 : 0);
}

void FlexGrid::SetText(int row, int col, std::string text) {
  std::string& cell = cells_[Index(row)][Index(col)];
  if (cell == text) return;
  cell = std::move(text);
  if (CellView) CellView(row, col);
}

std::string FlexGrid::Clip() const {
  const GridBlock& block = Selection;
  std::string clip;
  for (int row = block.Top(); row <= block.Bottom(); ++row) {
    if (row > block.Top()) clip += '\r';
    for (int col = block.Left(); col <= block.Right(); ++col) {
      if (col > block.Left()) clip += '\t';
      clip += Text(row, col);
    }
  }
  return clip;
}

void FlexGrid::SetClip(std::string_view text) {
  const GridBlock block = Selection;
  for (int row = block.Top(); row <= block.Bottom(); ++row) {
    const bool last = text.find('\r') == std::string_view::npos;
    std::string_view line = TakePart(text, '\r');
    if (last && line.empty()) return;
    for (int col = block.Left(); col <= block.Right(); ++col) {
      const bool lastCell = line.find('\t') == std::string_view::npos;
      SetText(row, col, std::string(TakePart(line, '\t')));
      if (lastCell) break;
    }
    if (last) return;
  }
}

ClipSize SizeOfClip(std::string_view text) {
  ClipSize size{0, 1};
  while (!text.empty()) {
    const std::string_view line = TakePart(text, '\r');
    ++size.Rows;
    size.Cols = std::max(size.Cols, 1 + static_cast<int>(std::ranges::count(line, '\t')));
  }
  size.Rows = std::max(size.Rows, 1);
  return size;
}

// See ReflowArea.h.
#include "desktop/main/ReflowArea.h"

#include <QEvent>
#include <QGridLayout>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>
#include <cmath>

#include "desktop/kit/FieldPanel.h"

namespace {

/// The usable size of a drawing in its space: channels are wider than high.
int Score(int width, int height) {
  return std::min(width, height * 9 / 5);
}

}  // namespace

ReflowArea::ReflowArea(QWidget* page, const Parts& parts, QWidget* parent)
    : ScrollPage(page, parent), parts_(parts), grid_(new QGridLayout(page)) {}

void ReflowArea::changeEvent(QEvent* event) {
  ScrollPage::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) Arrange();
}

void ReflowArea::resizeEvent(QResizeEvent* event) {
  Arrange();
  ScrollPage::resizeEvent(event);
}

ReflowArea::Columns ReflowArea::Best(QSize room) const {
  const int gap = grid_->horizontalSpacing();
  const QSize inputs = parts_.Inputs->sizeHint();
  const QSize results = parts_.Results->sizeHint();
  const QSize drawing = parts_.Drawing->minimumSizeHint();
  const int fields = inputs.width() + gap + results.width();
  const int fieldHeight = std::max(inputs.height(), results.height());
  const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);

  const int beside = room.width() - fields - gap;
  const int below = room.height() - fieldHeight - gap;
  const bool three = beside >= drawing.width() && room.height() >= fieldHeight;
  const bool two = room.width() >= fields + (below >= drawing.height() ? 0 : scrollBar);
  if (three && (below < drawing.height() || Score(beside, room.height()) >= Score(room.width(), below))) {
    return Columns::Three;
  }
  return two ? Columns::Two : Columns::One;
}

void ReflowArea::Arrange() {
  const int em = fontMetrics().height();
  const int margin = em * 3 / 4;
  grid_->setContentsMargins(margin, margin, margin, margin);
  grid_->setHorizontalSpacing(em * 3 / 2);
  grid_->setVerticalSpacing(margin);
  const int rowGap = em * 3 / 8;
  for (FieldPanel* const panel : {parts_.Inputs, parts_.Results}) panel->SetRowGap(rowGap);

  const QSize room = maximumViewportSize() - QSize(2 * margin, 3 * margin + parts_.Top->sizeHint().height());
  const Columns columns = Best(room);
  Place(columns);
  if (columns == Columns::One) return;
  // Rows grow with the window as far as they still read as one block. They move together to keep the drawing
  // in sight, and where it cannot be, to keep the last of them there.
  constexpr int gaps = 10;
  const int least = em / 8;
  const int fields = std::max(parts_.Inputs->sizeHint().height(), parts_.Results->sizeHint().height());
  int spare = room.height() - fields;
  if (columns == Columns::Two) {
    const int besideDrawing = spare - margin - parts_.Drawing->minimumSizeHint().height();
    if (besideDrawing >= gaps * (least - rowGap)) spare = besideDrawing;
  }
  const int most = columns == Columns::Three ? em * 5 / 4 : rowGap;
  for (FieldPanel* const panel : {parts_.Inputs, parts_.Results}) {
    panel->SetRowGap(std::clamp(rowGap + static_cast<int>(std::floor(spare / (1.0 * gaps))), least, most));
  }
}

void ReflowArea::Place(Columns columns) {
  struct Area {
    int Row, Column, Columns;
  };
  struct Placing {
    int Columns, DrawingRow;
    Area Inputs, Drawing, Results;
    int Stretches[3];
  };
  static constexpr Placing Placings[] = {{3, 1, {1, 0, 1}, {1, 2, 1}, {1, 1, 1}, {0, 0, 1}},
                                         {2, 2, {1, 0, 1}, {2, 0, 2}, {1, 1, 1}, {1, 1, 0}},
                                         {1, 3, {1, 0, 1}, {3, 0, 1}, {2, 0, 1}, {1, 0, 0}}};
  const Placing& placing = Placings[static_cast<int>(columns)];
  const auto put = [this](QWidget* widget, const Area& area, Qt::Alignment alignment) {
    grid_->removeWidget(widget);
    grid_->addWidget(widget, area.Row, area.Column, 1, area.Columns, alignment);
  };
  put(parts_.Top, {0, 0, placing.Columns}, {});
  put(parts_.Inputs, placing.Inputs, Qt::AlignTop);
  put(parts_.Results, placing.Results, Qt::AlignTop);
  put(parts_.Drawing, placing.Drawing, {});
  for (int column = 0; column < 3; ++column) grid_->setColumnStretch(column, placing.Stretches[column]);
  for (int row = 1; row <= 3; ++row) grid_->setRowStretch(row, row == placing.DrawingRow ? 1 : 0);
}

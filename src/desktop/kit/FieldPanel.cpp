// See FieldPanel.h.
#include "desktop/kit/FieldPanel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyleOptionComboBox>
#include <algorithm>

#include "desktop/kit/Bind.h"
#include "desktop/kit/DecimalColumn.h"
#include "desktop/kit/Symbol.h"
#include "desktop/kit/Text.h"

namespace {

enum Column { CaptionColumn, SymbolColumn, BoxColumn, UnitColumn };

/// What a screen reader adds to the name of the box: its unit, and why it cannot be used.
QString Description(const FieldPanel::Field& field) {
  QStringList parts;
  if (field.Unit != nullptr) parts << Printed(field.Unit->Caption.Get());
  parts << QLatin1String(field.FixedUnit);
  parts << ToQt(field.Box.ToolTip.Get());
  parts.removeAll(QString());
  return parts.join(QLatin1String(", "));
}

}  // namespace

FieldPanel::FieldPanel(QWidget* heading, QWidget* parent) : QWidget(parent), grid_(new QGridLayout(this)) {
  QFont font = heading->font();
  font.setBold(true);
  font.setPointSizeF(font.pointSizeF() * 1.15);
  heading->setFont(font);
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setColumnStretch(BoxColumn, 1);
  grid_->setHorizontalSpacing(fontMetrics().averageCharWidth());
  grid_->addWidget(heading, 0, 0, 1, 4, Qt::AlignLeft);
  // That of a list, so that panels with and without one have their rows side by side.
  const QStyleOptionComboBox list;
  grid_->setRowMinimumHeight(
      0, style()
             ->sizeFromContents(QStyle::CT_ComboBox, &list, QFontMetrics(font).size(0, QStringLiteral("X")),
                                heading)
             .height());
}

int FieldPanel::Row() const {
  return grid_->rowCount();
}

BoxEdit* FieldPanel::AddField(const Field& field) {
  const int row = Row();
  QLabel* const caption = Bind::Caption(field.Caption, this, field.Mnemonics);
  BoxEdit* const box = Bind::Box(field.Box, this);
  caption->setBuddy(box);
  box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);  // as wide as its column is
  auto* const symbol = new QLabel(this);
  auto* const unit = field.Unit != nullptr ? Bind::Caption(*field.Unit, this) : new QLabel(this);
  if (field.Unit == nullptr) unit->setText(QLatin1String(field.FixedUnit));
  Bind::Follow(field.Caption.Caption, this,
               [field, symbol] { symbol->setText(SymbolAsRichText(QLatin1String(field.Symbol.Current()))); });
  Bind::Follow(field.Caption.Visible, this, [field, symbol, unit] {
    symbol->setVisible(field.Caption.Visible);
    if (field.Unit == nullptr) unit->setVisible(field.Caption.Visible);
  });
  const auto describe = [field, box] { box->setAccessibleDescription(Description(field)); };
  Bind::Follow(field.Box.ToolTip, this, describe);
  if (field.Unit != nullptr) Bind::Follow(field.Unit->Caption, this, describe);
  int room = 0;
  for (const char* const text : {field.Captions.Usual, field.Captions.Surveyed}) {
    room = std::max(room, fontMetrics().boundingRect(QLatin1String(text)).width() + 1);
  }
  if (field.Switch == nullptr) {
    grid_->addWidget(caption, row, CaptionColumn);
  } else {
    auto* const both = new QHBoxLayout;
    both->addWidget(caption);
    both->addStretch();
    both->addWidget(field.Switch);
    grid_->addLayout(both, row, CaptionColumn);
    room += 2 * both->spacing() + field.Switch->sizeHint().width();
  }
  captionRoom_ = std::max(captionRoom_, room);
  grid_->addWidget(symbol, row, SymbolColumn);
  grid_->addWidget(box, row, BoxColumn);
  grid_->addWidget(unit, row, UnitColumn);
  return box;
}

void FieldPanel::AddUnderBox(QWidget* widget) {
  grid_->addWidget(widget, Row(), BoxColumn, 1, 2, Qt::AlignLeft);
}

void FieldPanel::KeepRoom(int unitWidth) {
  // The widest comes and goes with its caption; drawn, it is wider than its text by a pixel or so.
  int symbolWidth = fontMetrics().horizontalAdvance(QStringLiteral("Wc "));
  for (int row = 1; row < Row(); ++row) {
    if (const QLayoutItem* const item = grid_->itemAtPosition(row, SymbolColumn)) {
      symbolWidth = std::max(symbolWidth, item->widget()->sizeHint().width());
    }
  }
  grid_->setColumnMinimumWidth(SymbolColumn, symbolWidth);
  grid_->setColumnMinimumWidth(CaptionColumn, captionRoom_);
  grid_->setColumnMinimumWidth(UnitColumn, unitWidth);
  grid_->setColumnMinimumWidth(BoxColumn, fontMetrics().horizontalAdvance(QStringLiteral("12,345,678.901")));
}

void FieldPanel::AlignDecimals() {
  auto* const column = new DecimalColumn(this);
  for (int row = 1; row < Row(); ++row) {
    const QLayoutItem* const item = grid_->itemAtPosition(row, BoxColumn);
    if (auto* const box = item == nullptr ? nullptr : qobject_cast<QLineEdit*>(item->widget()))
      column->Add(box);
  }
}

void FieldPanel::SetRowGap(int spacing) {
  grid_->setVerticalSpacing(spacing);
}

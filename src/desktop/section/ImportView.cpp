// See ImportView.h.
#include "desktop/section/ImportView.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/chart/ChartPlot.h"
#include "desktop/chart/ChartWidget.h"
#include "desktop/kit/Bind.h"
#include "desktop/kit/GridTable.h"
#include "desktop/kit/Text.h"

namespace {

QLabel* Wrapped(Label& label, QWidget* parent) {
  QLabel* const text = Bind::Caption(label, parent);
  text->setWordWrap(true);
  return text;
}

/// What was read, as wide as its columns where the screen has room.
class ReadTable : public GridTable {
 public:
  using GridTable::GridTable;
  QSize sizeHint() const override {
    const int columns = verticalHeader()->width() + horizontalHeader()->length() +
                        verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    return {std::min(columns, 30 * fontMetrics().height()), 8 * fontMetrics().height()};
  }
};

/// A caption with its list or box beside it.
struct Choice {
  Label& Caption;
  FocusControl& Control;
  std::string_view Mnemonics;
};

void AddChoice(QGridLayout& grid, const Choice& choice, QWidget* parent) {
  QLabel* const caption = Bind::Caption(choice.Caption, parent, choice.Mnemonics);
  QWidget* widget = nullptr;
  if (auto* const list = dynamic_cast<ComboBox*>(&choice.Control)) {
    QComboBox* const combo = Bind::Combo(*list, parent);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    combo->setAccessibleDescription(ToQt(choice.Caption.Caption.Get()));
    widget = combo;
  } else {
    widget = Bind::Box(dynamic_cast<TextBox&>(choice.Control), parent);
  }
  caption->setBuddy(widget);
  const int row = grid.rowCount();
  grid.addWidget(caption, row, 0);
  grid.addWidget(widget, row, 1);
}

}  // namespace

ImportView::ImportView(frmImport& form, QWidget* parent) : FormDialog(form, parent) {
  auto* const above = new QWidget(this);
  auto* const row = new QHBoxLayout(above);
  row->setContentsMargins({});
  row->addWidget(ReadPart(form));
  row->addWidget(DrawingPart(form), 1);
  Column().addWidget(above, 1);
  Column().addWidget(ChangesPart(form));
  QLabel* const reason = Wrapped(form.lblReason, this);
  QFont bold = reason->font();
  bold.setBold(true);
  reason->setFont(bold);
  // Its room is kept, so that the dialog does not jump while something is chosen.
  reason->setMinimumHeight(fontMetrics().lineSpacing());
  AddButtons(Bind::Push(form.cmdOK, this, "o"), Bind::Push(form.cmdCancel, this, "a"), reason);
  resize(46 * fontMetrics().height(), 0);  // at least, for the drawing
}

QWidget* ImportView::ReadPart(frmImport& form) {
  auto* const part = new QWidget(this);
  auto* const column = new QVBoxLayout(part);
  column->setContentsMargins({});
  column->addWidget(Wrapped(form.lblRead, part));
  GridTable* const table = Bind::Adopt(form.MSFlexGrid1, new ReadTable(form.MSFlexGrid1, part));
  table->setAccessibleName(tr("What was read"));
  table->setMinimumSize(QSize(17, 8) * fontMetrics().height());
  column->addWidget(table, 1);
  auto* const choices = new QGridLayout;
  choices->setColumnStretch(1, 1);
  const Choice rows[] = {
      {form.lblSection, form.cbxSection, "s"},     {form.lblSeparator, form.cbxSeparator, "c"},
      {form.lblSign, form.cbxSign, "d"},           {form.lblStation, form.cbxStation, "t"},
      {form.lblElevation, form.cbxElevation, "e"}, {form.lblRoughness, form.cbxRoughness, "m"},
      {form.lblUnit, form.cbxUnit, "u"},           {form.lblFrontN, form.tbFrontN, "n"}};
  for (const Choice& each : rows) AddChoice(*choices, each, part);
  column->addLayout(choices);
  column->addWidget(Wrapped(form.lblNotes, part));
  return part;
}

QWidget* ImportView::DrawingPart(frmImport& form) {
  ChartWidget* const chart = Bind::Named(form.MSChart1, new ChartWidget(form.MSChart1, this));
  chart->SetTexts(tr("Nothing can be drawn yet."), {});
  chart->Style([](ChartPlot& plot) { plot.NameLines({tr("Before"), tr("After")}); });
  chart->LogarithmicAction()->setEnabled(false);
  chart->Plot().setMinimumSize(QSize(14, 11) * fontMetrics().height());
  return chart;
}

QWidget* ImportView::ChangesPart(frmImport& form) {
  QGroupBox* const group = Bind::Group(form.lblChanges, this);
  auto* const grid = new QGridLayout(group);
  grid->setColumnStretch(1, 1);
  grid->setColumnMinimumWidth(0,
                              2 * fontMetrics().averageCharWidth());  // the sentences stand below their box
  for (int i = 0; i < Survey::KindCount; ++i) {
    QCheckBox* const box = Bind::Check(form.chkChange[i], group);
    QLabel* const text = Wrapped(form.lblChange[i], group);
    Bind::Follow(form.lblChange[i].Caption, box,
                 [box, text] { box->setAccessibleDescription(text->text()); });
    grid->addWidget(box, 2 * i, 0, 1, 2, Qt::AlignLeft);
    grid->addWidget(text, 2 * i + 1, 1);
  }
  return group;
}

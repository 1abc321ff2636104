// See IrregView.h.
#include "desktop/IrregView.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/Bind.h"
#include "desktop/ChartPlot.h"
#include "desktop/ChartWidget.h"
#include "desktop/PointGrid.h"
#include "desktop/ScrollPage.h"
#include "desktop/SectionBackdrop.h"

namespace {

/// The table with the buttons that act on it.
QVBoxLayout* TableColumn(PointGrid* grid, frmIrreg& form, QWidget* page) {
  auto* const column = new QVBoxLayout;
  column->addWidget(grid, 1);
  auto* const buttons = new QGridLayout;
  buttons->addWidget(Bind::Push(form.cmdCopy, page, "c"), 0, 0);
  buttons->addWidget(Bind::Push(form.cmdPaste, page, "p"), 0, 1);
  buttons->addWidget(Bind::Push(form.cmdIns, page, "i"), 1, 0);
  buttons->addWidget(Bind::Push(form.cmdDel, page, "d"), 1, 1);
  column->addLayout(buttons);
  return column;
}

}  // namespace

IrregView::IrregView(frmIrreg& form, QWidget* parent) : FormWindow(parent) {
  AddMenu(tr("&File"), {{&form.mnuFileImport, "i", {}}, {&form.mnuFileExport, "e", {}}});
  QMenu* const edit =
      AddMenu(tr("&Edit"), {{&form.mnuEditUndo, "u", QKeySequence::Undo}, {&form.mnuEditRedo, "r", {}}});
  edit->actions().last()->setShortcuts(
      {QKeySequence(QStringLiteral("Ctrl+Shift+Z")), QKeySequence(QStringLiteral("Ctrl+Y"))});

  auto* const window = new QWidget(this);
  auto* const page = new QWidget(window);
  auto* const column = new QVBoxLayout(page);
  QLabel* const hint = Bind::Caption(form.Label1, page);
  hint->setWordWrap(true);
  column->addWidget(hint);
  auto* const middle = new QHBoxLayout;
  auto* const grid = new PointGrid(form, page);
  middle->addLayout(TableColumn(grid, form, page));
  ChartWidget* const chart = Bind::Chart(form.MSChart1, page);
  chart->SetTexts(tr("The section is drawn here as its points are entered."), {});
  chart->Dress([](ChartPlot& plot) {
    plot.NameLines({tr("Ground")});
    new SectionBackdrop(plot, {});  // the plot owns it
  });
  chart->LogarithmicAction()->setEnabled(false);
  chart->Plot().setMinimumSize(QSize(10, 8) *
                               fontMetrics().height());  // the table needs most of a small screen
  middle->addWidget(chart, 1);
  column->addLayout(middle, 1);
  auto* const ending = new QDialogButtonBox(window);
  ending->addButton(Bind::Push(form.cmdOK, ending, "o"), QDialogButtonBox::AcceptRole);
  ending->addButton(Bind::Push(form.cmdCancel, ending, "a"), QDialogButtonBox::RejectRole);
  ScrollPage::Fill(window, page, ending);
  setCentralWidget(window);
  grid->setFocus();
  SetSize({56, 38});
}

// See IrregView.h.
#include "desktop/section/IrregView.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

#include "desktop/chart/ChartPlot.h"
#include "desktop/chart/ChartWidget.h"
#include "desktop/kit/Bind.h"
#include "desktop/kit/ScrollPage.h"
#include "desktop/kit/Text.h"
#include "desktop/section/PointGrid.h"
#include "desktop/section/SectionBackdrop.h"

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
  buttons->addWidget(Bind::Push(form.cmdMannParams, page, "t"), 2, 0, 1, 2);
  column->addLayout(buttons);
  return column;
}

/// A row without an elevation yet draws nothing.
ChartPlot::Breaking Ground(const frmIrreg& form) {
  ChartPlot::Breaking ground;
  for (const Outline::Point& point : form.Ground()) ground.emplace_back(QPointF(point.X, point.Y));
  return ground;
}

ChartWidget* Drawing(frmIrreg& form, QWidget* page) {
  ChartWidget* const chart = Bind::Named(form.MSChart1, new ChartWidget(form.MSChart1, page));
  chart->SetTexts(IrregView::tr("The section is drawn here as its points are entered."), {});
  chart->Style([&form](ChartPlot& plot) {
    plot.NameLines({IrregView::tr("Ground")});
    plot.ReplaceLine(0, Ground(form));
    new SectionBackdrop(  // the plot owns it
        plot, [&form] {
          SectionDrawing drawing;
          drawing.Subsections = form.Subsections();
          return drawing;
        });
  });
  form.MSChart1.LoadView = [&form, guarded = QPointer<ChartWidget>(chart),
                            load = std::move(form.MSChart1.LoadView)] {
    if (guarded) guarded->Plot().ReplaceLine(0, Ground(form));
    load();
  };
  chart->LogarithmicAction()->setEnabled(false);
  // The table needs most of a small screen.
  chart->Plot().setMinimumSize(QSize(10, 8) * page->fontMetrics().height());
  return chart;
}

/// The path of the one file that is dragged; else empty.
QString DraggedFile(const QMimeData& dragged) {
  const QList<QUrl> urls = dragged.urls();
  return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

}  // namespace

IrregView::IrregView(frmIrreg& form, QWidget* parent) : FormWindow(parent), form_(form) {
  AddMenu(tr("&File"), {{&form.mnuFileImport, "i", {}}, {&form.mnuFileExport, "e", {}}});
  QMenu* const edit =
      AddMenu(tr("&Edit"), {{&form.mnuEditUndo, "u", QKeySequence::Undo}, {&form.mnuEditRedo, "r", {}}});
  edit->actions().last()->setShortcuts(
      {QKeySequence(QStringLiteral("Ctrl+Shift+Z")), QKeySequence(QStringLiteral("Ctrl+Y"))});

  auto* const window = new QWidget(this);
  auto* const page = new QWidget(window);
  auto* const row = new QHBoxLayout(page);
  auto* const grid = new PointGrid(form, page);
  row->addLayout(TableColumn(grid, form, page));
  row->addWidget(Drawing(form, page), 1);
  auto* const ending = new QDialogButtonBox(window);
  ending->addButton(Bind::Push(form.cmdOK, ending, "o"), QDialogButtonBox::AcceptRole);
  ending->addButton(Bind::Push(form.cmdCancel, ending, "a"), QDialogButtonBox::RejectRole);
  // Above what is scrolled: a text that wraps would keep the table from giving way on a small screen.
  QLabel* const hint = Bind::Caption(form.Label1, window);
  hint->setWordWrap(true);
  QMargins margins = row->contentsMargins();
  margins.setBottom(0);
  hint->setContentsMargins(margins);
  ScrollPage::Fill(window, page, ending)->insertWidget(0, hint);
  setCentralWidget(window);
  grid->setFocus();
  setAcceptDrops(true);
  SetSize({56, 38});
}

void IrregView::dragEnterEvent(QDragEnterEvent* event) {
  if (!DraggedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void IrregView::dropEvent(QDropEvent* event) {
  const std::string path = FromQt(DraggedFile(*event->mimeData()));
  event->acceptProposedAction();
  // Afterwards: the dialog waits for the user, and the program dragged from for the drop to end.
  QTimer::singleShot(0, this, [this, path] { form_.ImportFile(path); });
}

// See TableView.h.
#include "desktop/TableView.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>

#include "desktop/Bind.h"
#include "desktop/GridTable.h"
#include "desktop/RatingNote.h"

TableView::TableView(frmTable& form, QWidget* parent) : FormWindow(parent) {
  AddMenu(tr("&File"), {{&form.mnuPrint, "p", QKeySequence::Print},
                        {&form.mnuPrintPreview, "v", {}},
                        {&form.mnuFileExport, "e", {}},
                        {},
                        {&form.mnuFileExit, "x", QKeySequence::Close}});
  QMenu* const edit = AddMenu(
      tr("&Edit"), {{&form.mnuEditCopy, "c", QKeySequence::Copy}, {}, {&form.mnuEditSettings, "s", {}}});

  GridTable* const table = Bind::Grid(form.MSFlexGrid1, this);
  table->setAccessibleName(tr("Rating table"));
  table->setContextMenuPolicy(Qt::ActionsContextMenu);
  table->addAction(edit->actions().first());
  setCentralWidget(table);

  auto* const count = new QLabel(this);
  statusBar()->addWidget(count);
  const auto tell = [table, count] {
    const int rows = table->model()->rowCount();
    count->setText(rows == 1 ? tr("1 row") : tr("%L1 rows").arg(rows));
    table->SetEmptyText(WhyNoPoints());
  };
  connect(table->model(), &QAbstractItemModel::modelReset, count, tell);
  tell();
  table->setFocus();
  SetSize({84, 38});
}

// See TableView.h.
#include "desktop/rating/TableView.h"

#include <QAction>
#include <QLabel>
#include <QStatusBar>

#include "desktop/kit/Bind.h"
#include "desktop/kit/GridTable.h"

TableView::TableView(frmTable& form, QWidget* parent) : RatingView(form, parent) {
  GridTable* const table = Bind::Adopt(form.MSFlexGrid1, new GridTable(form.MSFlexGrid1, this));
  table->setAccessibleName(tr("Rating table"));
  table->setContextMenuPolicy(Qt::ActionsContextMenu);
  table->addAction(CopyAction());
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

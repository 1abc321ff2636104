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
  SetContent(table);

  auto* const count = new QLabel(this);
  statusBar()->addWidget(count);
  const auto tell = [table, count] {
    const int rows = table->model()->rowCount();
    count->setText(rows == 1 ? tr("1 row") : tr("%L1 rows").arg(rows));
  };
  connect(table->model(), &QAbstractItemModel::modelReset, count, tell);
  tell();
  Bind::Follow(form.lblMissing.Caption, table, [this, table] { table->SetEmptyText(WhyNothing()); });
  table->setFocus();
  SetSize({84, 38});
}

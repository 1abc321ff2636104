// See TableView.h.
#include "desktop/rating/TableView.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QVBoxLayout>

#include "desktop/kit/Bind.h"
#include "desktop/kit/GridTable.h"

TableView::TableView(frmTable& form, QWidget* parent) : RatingView(form, parent) {
  GridTable* const table = Bind::Adopt(form.MSFlexGrid1, new GridTable(form.MSFlexGrid1, this));
  table->setAccessibleName(tr("Rating table"));
  table->setContextMenuPolicy(Qt::ActionsContextMenu);
  table->addAction(CopyAction());
  QLabel* const hidden = Bind::Caption(form.lblHidden, this);
  hidden->setWordWrap(true);
  hidden->setContentsMargins(Below());
  SetContent(table)->insertWidget(1, hidden);
  AddMenu(tr("&View"), {{&form.mnuViewHideConstant, "h", {}}})->actions().first()->setCheckable(true);

  auto* const count = new QLabel(this);
  statusBar()->addWidget(count);
  const auto show = [table, count, &form] {
    const int rows = table->model()->rowCount();
    const int marked = form.MSFlexGrid1.MarkedRow;
    QString text = rows == 1 ? tr("1 row") : tr("%L1 rows").arg(rows);
    if (marked > 0) text += tr("; row %L1 is the problem as typed").arg(marked);
    count->setText(text);
  };
  connect(table->model(), &QAbstractItemModel::modelReset, count, show);
  show();
  Bind::Follow(form.lblMissing.Caption, table, [this, table] { table->SetEmptyText(WhyNothing()); });
  table->setFocus();
  SetSize({84, 38});
}

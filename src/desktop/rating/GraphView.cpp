// See GraphView.h.
#include "desktop/rating/GraphView.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>

#include "desktop/chart/ChartWidget.h"
#include "desktop/kit/Bind.h"
#include "desktop/kit/Text.h"

namespace {

/// What the marked stretches are, after a sample of one.
QWidget* Legend(frmGraph& form, const QMargins& margins, QWidget* parent) {
  auto* const legend = new QWidget(parent);
  auto* const row = new QHBoxLayout(legend);
  row->setContentsMargins(margins);
  row->addWidget(ChartWidget::MarkedSample(legend));
  row->addWidget(Bind::Caption(form.lblMarked, legend), 1);
  Bind::Follow(form.lblMarked.Visible, legend,
               [&form, legend] { legend->setVisible(form.lblMarked.Visible); });
  return legend;
}

}  // namespace

GraphView::GraphView(frmGraph& form, QWidget* parent) : RatingView(form, parent) {
  ChartWidget* const chart = Bind::Named(form.MSChart1, new ChartWidget(form.MSChart1, this));
  SetContent(chart)->insertWidget(1, Legend(form, Below(), this));
  const auto tell = [this, &form, chart] {
    chart->SetTexts(WhyNothing(), ToQt(form.lblMarked.Caption.Get()));
  };
  Bind::Follow(form.lblMissing.Caption, chart, tell);

  QMenu* const view = menuBar()->addMenu(tr("&View"));
  view->addAction(chart->LogarithmicAction());
  view->addSeparator();
  view->addActions(chart->ZoomActions());
  chart->insertAction(chart->LogarithmicAction(), CopyAction());
  chart->setFocus();
  SetSize({56, 38});
}

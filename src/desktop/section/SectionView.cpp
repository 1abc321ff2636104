// See SectionView.h.
#include "desktop/section/SectionView.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "desktop/chart/ChartPlot.h"
#include "desktop/chart/ChartWidget.h"
#include "desktop/kit/Bind.h"
#include "desktop/section/SectionBackdrop.h"

namespace {

/// The surfaces of pools: behind the last station of a section the chart's own line may go on.
ChartPlot::Breaking Surfaces(const std::vector<std::vector<SectionTable::Point>>& pools) {
  ChartPlot::Breaking surfaces;
  for (const auto& pool : pools) {
    surfaces.emplace_back(QPointF(pool.front().X, pool.front().Y));
    surfaces.emplace_back(QPointF(pool.back().X, pool.back().Y));
    surfaces.emplace_back();
  }
  return surfaces;
}

}  // namespace

SectionView::SectionView(frmSection& form, QWidget* parent) : FormWindow(parent) {
  AddMenu(tr("&File"), {{&form.mnuFileExport, "e", {}}, {}, {&form.mnuFileExit, "x", QKeySequence::Close}});
  QMenu* const edit = AddMenu(tr("&Edit"), {{&form.mnuEditCopy, "c", QKeySequence::Copy}});
  ChartWidget* const chart = Bind::Named(form.MSChart1, new ChartWidget(form.MSChart1, this));
  const bool isPipe = form.MSChart1.UniformAxis;
  const bool isSurveyed = !form.Stretches().empty();
  chart->Dress([&form, isPipe, isSurveyed](ChartPlot& plot) {
    plot.NameLines({isPipe       ? tr("Pipe wall")
                    : isSurveyed ? tr("Ground")
                                 : tr("Channel"),
                    tr("Water surface")});
    if (isSurveyed) plot.ReplaceLine(1, Surfaces(form.Pools()));
    new SectionBackdrop(plot, {form.Pools(), form.Stretches(), isPipe});  // the plot owns it
  });
  chart->LogarithmicAction()->setEnabled(false);
  chart->insertAction(chart->LogarithmicAction(), edit->actions().first());
  setCentralWidget(chart);
  menuBar()->addMenu(tr("&View"))->addActions(chart->ZoomActions());
  chart->setFocus();
  SetSize({56, 36});
}

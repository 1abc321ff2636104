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

/// The water surfaces from bank to bank. The chart's own line may go on behind the last station of a survey,
/// and leave a pipe by the digits that its top width is rounded to.
ChartPlot::Breaking Surfaces(const SectionDrawing& drawing) {
  ChartPlot::Breaking surfaces;
  const auto add = [&surfaces](const Outline::Line& water) {
    if (water.empty()) return;
    surfaces.emplace_back(QPointF(water.front().X, water.front().Y));
    surfaces.emplace_back(QPointF(water.back().X, water.back().Y));
    surfaces.emplace_back();
  };
  for (const Outline::Line& pool : drawing.Pools) add(pool);
  if (drawing.Pipe) add(Outline::Surface(*drawing.Pipe, drawing.Level));
  return surfaces;
}

}  // namespace

SectionView::SectionView(frmSection& form, QWidget* parent) : FormWindow(parent) {
  AddMenu(tr("&File"), {{&form.mnuFileExport, "e", {}}, {}, {&form.mnuFileExit, "x", QKeySequence::Close}});
  QMenu* const edit = AddMenu(tr("&Edit"), {{&form.mnuEditCopy, "c", QKeySequence::Copy}});
  ChartWidget* const chart = Bind::Named(form.MSChart1, new ChartWidget(form.MSChart1, this));
  const SectionDrawing& drawing = form.Drawing();
  chart->Style([&drawing](ChartPlot& plot) {
    const bool isSurveyed = !drawing.Subsections.empty();
    plot.NameLines({drawing.Pipe ? tr("Pipe wall")
                    : isSurveyed ? tr("Ground")
                                 : tr("Channel"),
                    tr("Water surface")});
    if (drawing.Pipe) {
      const auto& [centre, radius] = *drawing.Pipe;
      plot.DrawAsCircle(0, QPointF(centre.X, centre.Y), radius);
    }
    if (drawing.Pipe || isSurveyed) plot.ReplaceLine(1, Surfaces(drawing));
    new SectionBackdrop(plot, [drawing] { return drawing; });  // the plot owns it
  });
  chart->LogarithmicAction()->setEnabled(false);
  chart->insertAction(chart->LogarithmicAction(), edit->actions().first());
  setCentralWidget(chart);
  menuBar()->addMenu(tr("&View"))->addActions(chart->ZoomActions());
  chart->setFocus();
  SetSize({56, 36});
}

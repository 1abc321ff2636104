// See RatingView.h.
#include "desktop/rating/RatingView.h"

#include <QAction>
#include <QMenu>

#include "app/Declarations.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"

namespace {

const char* Rule() {
  switch (RatingRange.VaryCode) {
    case Units::Length:
      return CurrentChannelType().IsSurveyed() ? "Levels must be above the lowest point of the section."
             : CurrentChannelType().Is == Shape::Pipe
                 ? "Depths must be greater than 0 and not above the diameter."
                 : "Depths must be greater than 0.";
    case Units::Flow:
      return "Flows must be greater than 0.";
    case Units::Slope:
      return "Slopes must be greater than 0 and not above 1.";
    case Units::Diameter:
      return ChannelState.SolveForFlow ? "Diameters must not be below the depth."
                                       : "Diameters must be greater than 0.";
    case Units::BaseWidth:
      return "Widths must not be below 0.";
    default:
      return "Manning's n must be greater than 0 and not above 1.";
  }
}

}  // namespace

RatingView::RatingView(RatingWindow& form, QWidget* parent) : FormWindow(parent) {
  AddMenu(tr("&File"), {{&form.mnuPrint, "p", QKeySequence::Print},
                        {&form.mnuPrintPreview, "v", {}},
                        {&form.mnuFileExport, "e", {}},
                        {},
                        {&form.mnuFileExit, "x", QKeySequence::Close}});
  const QMenu* const edit = AddMenu(
      tr("&Edit"), {{&form.mnuEditCopy, "c", QKeySequence::Copy}, {}, {&form.mnuEditSettings, "s", {}}});
  copy_ = edit->actions().first();
}

QString RatingView::WhyNoPoints() {
  return QStringLiteral("Nothing can be computed in this range. %1\nAnother range: Edit > Settings.")
      .arg(QLatin1String(Rule()));
}

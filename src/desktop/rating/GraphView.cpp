// See GraphView.h.
#include "desktop/rating/GraphView.h"

#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>

#include "desktop/chart/ChartPlot.h"
#include "desktop/chart/ChartWidget.h"
#include "desktop/kit/Bind.h"
#include "desktop/kit/ScrollPage.h"
#include "desktop/kit/Text.h"

namespace {

/// What the marked spans are, after a sample of one.
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

/// The lists and boxes that are in force at once, one below the other.
class Choices : public QWidget {
 public:
  Choices(frmGraph& form, QWidget* parent) : QWidget(parent), rows_(new QGridLayout(this)) {
    rows_->setColumnStretch(0, 1);
    AddList(form.lblPlot, "p", form.cbxY);
    AddList(form.lblVary, "r", form.cbxVary);
    AddBox(form.Label1, "i", form.tbMin, form.lblunits[0]);
    AddBox(form.Label2, "l", form.tbMax, form.lblunits[1]);
    AddList(form.lblFamily, "m", form.cbxFamily);
    AddBox(form.lblValues, "u", form.tbFamily, form.lblFamilyUnit, UnitPlace::Above);
    QLabel* const extent = Bind::Caption(form.lblRange, this);
    extent->setWordWrap(true);
    rows_->addWidget(extent, rows_->rowCount(), 0, 1, 2);
    rows_->setRowStretch(rows_->rowCount(), 1);
  }

 private:
  enum class UnitPlace { None, Beside, Above };

  void AddList(Label& caption, const char* mnemonics, ComboBox& list) {
    QComboBox* const widget = Bind::Combo(list, this);
    widget->setAccessibleDescription(ToQt(caption.Caption.Get()));
    Add(caption, mnemonics, widget, UnitPlace::None);
  }
  /// The unit stands beside the box, or above it, where the box takes all the room.
  void AddBox(Label& caption, const char* mnemonics, TextBox& box, Label& unit,
              UnitPlace place = UnitPlace::Beside) {
    BoxEdit* const edit = Bind::Box(box, this);
    const int row = Add(caption, mnemonics, edit, place);
    rows_->addWidget(Bind::Caption(unit, this), place == UnitPlace::Above ? row : row + 1, 1);
    const auto describe = [&unit, &box, edit] {
      QStringList parts{Printed(unit.Caption.Get()), ToQt(box.ToolTip.Get())};
      parts.removeAll(QString());
      edit->setAccessibleDescription(parts.join(QLatin1String(", ")));
    };
    Bind::Follow(unit.Caption, edit, describe);
    Bind::Follow(box.ToolTip, edit, describe);
  }
  int Add(Label& caption, const char* mnemonics, QWidget* widget, UnitPlace place) {
    QLabel* const label = Bind::Caption(caption, this, mnemonics);
    label->setBuddy(widget);
    const int row = rows_->rowCount();
    rows_->addWidget(label, row, 0, 1, place == UnitPlace::Above ? 1 : 2);
    rows_->addWidget(widget, row + 1, 0, 1, place == UnitPlace::Beside ? 1 : 2);
    return row;
  }

  QGridLayout* rows_;
};

}  // namespace

GraphView::GraphView(frmGraph& form, QWidget* parent) : RatingView(form, parent) {
  auto* const content = new QWidget(this);
  auto* const row = new QHBoxLayout(content);
  row->setContentsMargins({});
  row->setSpacing(0);
  auto* const choices = new ScrollPage(new Choices(form, content), content);
  choices->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // On a small screen with large texts both give way.
  const int em = fontMetrics().height();
  choices->setFixedWidth(qBound(12 * em, screen()->availableSize().width() - 11 * em, 15 * em));
  row->addWidget(choices);
  ChartWidget* const chart = Bind::Named(form.MSChart1, new ChartWidget(form.MSChart1, content));
  chart->Plot().setMinimumSize(10 * em, 8 * em);
  row->addWidget(chart, 1);
  SetContent(content)->insertWidget(1, Legend(form, Below(), this));
  const auto explain = [this, &form, chart] {
    chart->SetTexts(WhyNothing(), ToQt(form.lblMarked.Caption.Get()));
  };
  Bind::Follow(form.lblMissing.Caption, chart, explain);

  QMenu* const view = AddMenu(tr("&View"), {{&form.mnuViewSwap, "s", {}}});
  view->actions().first()->setCheckable(true);
  view->addAction(chart->LogarithmicAction());
  view->addSeparator();
  view->addActions(chart->ZoomActions());
  chart->insertAction(chart->LogarithmicAction(), CopyAction());
  chart->setFocus();
  SetSize({72, 38});
}

// See ChartWidget.h; the pictures are in ChartWidgetPicture.cpp.
#include "desktop/chart/ChartWidget.h"

#include <QAccessible>
#include <QAction>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <limits>

#include "app/Declarations.h"
#include "app/NumberDisplay.h"
#include "desktop/chart/ChartPlot.h"
#include "desktop/chart/ChartReader.h"
#include "desktop/kit/Appearance.h"
#include "desktop/kit/Bind.h"
#include "desktop/kit/EmptyNote.h"
#include "desktop/kit/Text.h"

namespace {

constexpr qsizetype PageOfPoints = 10;

/// The title of an axis, "Depth, ft", in its parts.
struct AxisTitle {
  explicit AxisTitle(const std::string& title)
      : Name(Printed(title).section(QLatin1String(", "), 0, 0)),
        Unit(Printed(title).section(QLatin1String(", "), 1)) {}
  /// "Depth 2.000 ft"
  QString With(const QString& number) const { return (Name + u' ' + number + u' ' + Unit).trimmed(); }

  QString Name, Unit;
};

/// As many digits as distinguish neighbours on an axis whose values lie `spread` apart.
QString Number(double x, double spread) {
  const int digits = std::max(4, Declarations::SigDigs);
  constexpr double None = -std::numeric_limits<double>::infinity();
  const auto decimals = [](double value) {
    return value == 0 ? None : -std::floor(std::log10(std::fabs(value)));
  };
  const double wanted = std::max({decimals(x) + digits - 1, decimals(spread) + 3, 0.0});
  constexpr double MostDecimals = 12;
  return ToQt(
      (wanted > MostDecimals ? SigFormat(x, 1, digits) : FixedFormat(x, 1, static_cast<int>(wanted))).Text());
}

class Sample : public QWidget {
 public:
  explicit Sample(QWidget* parent) : QWidget(parent) {
    const int em = fontMetrics().height();
    setFixedSize(3 * em, em);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPen pen = ChartPlot::MarkedPen(palette(), fontMetrics().height());
    painter.setPen(pen);
    painter.drawLine(QPointF(pen.widthF(), height() / 2.0), QPointF(width() - pen.widthF(), height() / 2.0));
  }
};

}  // namespace

ChartWidget::ChartWidget(XYChart& chart, QWidget* parent)
    : QWidget(parent), chart_(chart), plot_(new ChartPlot(chart, this)), note_(new EmptyNote(plot_)) {
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(plot_);
  const int em = fontMetrics().height();
  plot_->setMinimumSize(16 * em, 12 * em);
  plot_->setCursor(Qt::CrossCursor);
  plot_->installEventFilter(this);
  setFocusPolicy(Qt::StrongFocus);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  QAccessible::installFactory(ReadChart);  // no more than once
  AddReader();
  AddActions();
  chart_.LoadView = [this, guarded = QPointer<ChartWidget>(this)] {
    if (guarded) Load();
  };
  chart_.CopyView = [this, guarded = QPointer<ChartWidget>(this)] {
    if (guarded) Copy();
  };
  chart_.PictureView = [this, guarded = QPointer<ChartWidget>(this)](const std::string& extension) {
    return guarded ? Picture(extension) : std::string();
  };
  Restyle();
  Load();
}

void ChartWidget::AddReader() {
  // On a layer of its own: following the mouse does not draw the lines again.
  cross_ = new QCPItemTracer(plot_);
  ring_ = new QCPItemTracer(plot_);
  tag_ = new QCPItemText(plot_);
  cross_->setStyle(QCPItemTracer::tsCrosshair);
  ring_->setStyle(QCPItemTracer::tsCircle);
  tag_->setClipToAxisRect(false);
  tag_->setTextAlignment(Qt::AlignLeft);
  tag_->position->setType(QCPItemPosition::ptAbsolute);
  for (QCPAbstractItem* const item : std::initializer_list<QCPAbstractItem*>{cross_, ring_, tag_}) {
    item->setLayer(QStringLiteral("overlay"));
    item->setSelectable(false);
    item->setVisible(false);
  }
  connect(plot_, &QCustomPlot::afterLayout, this, [this] { PlaceReader(); });
}

QAction* ChartWidget::AddCommand(const QString& text, const QKeySequence& key,
                                 const std::function<void()>& run) {
  auto* const action = new QAction(text, this);
  action->setShortcut(key);
  action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  connect(action, &QAction::triggered, this, run);
  addAction(action);
  return action;
}

void ChartWidget::AddActions() {
  logarithmic_ = AddCommand(tr("&Logarithmic Axes"), QKeySequence(QStringLiteral("Ctrl+L")), [this] {
    plot_->SetLogarithmic(logarithmic_->isChecked());
    Load();
  });
  logarithmic_->setCheckable(true);
  const auto zoom = [this](double steps) {
    const QPointF centre = QRectF(plot_->axisRect()->rect()).center();
    plot_->Zoom(steps, read_ < 0 ? centre : ring_->position->pixelPosition());
  };
  zooms_ = {AddCommand(tr("Zoom &In"), QKeySequence::ZoomIn, [zoom] { zoom(1); }),
            AddCommand(tr("Zoom &Out"), QKeySequence::ZoomOut, [zoom] { zoom(-1); }),
            AddCommand(tr("&Whole Graph"), QKeySequence(Qt::Key_Home), [this] {
              plot_->ShowWhole();
              plot_->replot();
            })};
}

void ChartWidget::SetTexts(const QString& whyEmpty, const QString& marked) {
  whyEmpty_ = whyEmpty;
  marked_ = marked;
  Load();
}

void ChartWidget::Style(std::function<void(ChartPlot&)> style) {
  style_ = std::move(style);
  style_(*plot_);
  Load();
}

QWidget* ChartWidget::MarkedSample(QWidget* parent) {
  return new Sample(parent);
}

void ChartWidget::Load() {
  read_ = -1;
  plot_->Load();
  plot_->replot();
  extent_ = QPolygonF(plot_->Points()).boundingRect();
  if (!plot_->Points().isEmpty()) {
    note_->Explain(QString());
  } else {
    note_->Explain(plot_->IsLogarithmic() ? tr("Logarithmic axes show only points above 0: there are none.")
                                          : whyEmpty_);
  }
  QAccessibleTableModelChangeEvent changed(this, QAccessibleTableModelChangeEvent::ModelReset);
  QAccessible::updateAccessibility(&changed);
  setAccessibleName(tr("%1 against %2").arg(AxisTitle(chart_.YTitle).Name, AxisTitle(chart_.XTitle).Name));
  Describe();
}

void ChartWidget::Restyle() {
  const QColor ink = palette().color(QPalette::Text);
  const QColor ground = palette().color(QPalette::Base);
  plot_->setFont(font());
  plot_->SetColours(palette());
  const double em = fontMetrics().height();
  cross_->setPen(QPen(Appearance::Mixed(ground, ink, 0.55), 1, Qt::DashLine));
  ring_->setPen(QPen(ink, 0.12 * em));
  ring_->setBrush(ground);
  ring_->setSize(0.7 * em);
  tag_->setFont(font());
  tag_->setColor(palette().color(QPalette::ToolTipText));
  tag_->setBrush(palette().color(QPalette::ToolTipBase));
  tag_->setPen(QPen(Appearance::Mixed(ground, ink, 0.4), 1));
  const int padding = static_cast<int>(0.4 * em);
  tag_->setPadding({padding, padding, padding, padding});
}

void ChartWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange) return;
  Restyle();
  plot_->replot(QCustomPlot::rpQueuedReplot);
}

bool ChartWidget::HasMarked() const {
  return !chart_.Marked.Get().empty() || std::ranges::any_of(chart_.Curves, [](const XYChart::Curve& curve) {
    return !curve.Marked.empty();
  });
}

/// What the user sees at a glance.
QString ChartWidget::Content() const {
  const QList<QPointF>& points = plot_->Points();
  if (points.isEmpty()) return note_->text();
  const auto range = [](const std::string& title, double from, double to) {
    return AxisTitle(title).With(tr("from %1 to %2").arg(Number(from, to - from), Number(to, to - from)));
  };
  QStringList parts{tr("%n points", "", static_cast<int>(points.size())),
                    range(chart_.XTitle, extent_.left(), extent_.right()),
                    range(chart_.YTitle, extent_.top(), extent_.bottom())};
  QStringList curves;
  for (const XYChart::Curve& curve : chart_.Curves) curves << Printed(curve.Name);
  if (!curves.isEmpty()) parts << tr("beside: %1").arg(curves.join(QLatin1String(", ")));
  if (chart_.Present) {
    QString present = Printed(chart_.Present->Text);
    parts << tr("present problem: %1").arg(present.replace(u'\n', QLatin1String(", ")));
  }
  if (HasMarked()) parts << marked_;
  return parts.join(QLatin1String("; "));
}

void ChartWidget::Describe() {
  setAccessibleDescription(read_ < 0 ? Content() : Reading());
  QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&changed);
}

QString ChartWidget::Reading() const {
  if (read_ < 0) return {};
  const QPointF point = plot_->Points()[read_];
  const QString line = chart_.Curves.empty() ? QString() : plot_->LineName(plot_->LineOf(read_));
  return (line.isEmpty() ? line : line + u'\n') +
         AxisTitle(chart_.XTitle).With(Number(point.x(), extent_.width())) + u'\n' +
         AxisTitle(chart_.YTitle).With(Number(point.y(), extent_.height()));
}

QString ChartWidget::ColumnTitle(int column) const {
  const QString line = plot_->LineName(column / 2);
  const QString title = Printed((column % 2 == 0 ? chart_.XTitle : chart_.YTitle).Get());
  return line.isEmpty() ? title : line + QLatin1String(": ") + title;
}

int ChartWidget::RowCount() const {
  std::size_t rows = chart_.Rows().size();
  for (const XYChart::Curve& curve : chart_.Curves) rows = std::max(rows, curve.Points.size());
  return static_cast<int>(rows);
}

int ChartWidget::ColumnCount() const {
  return chart_.Cols() + 2 * static_cast<int>(chart_.Curves.size());
}

QString ChartWidget::PointText(int row, int column) const {
  if (column >= ColumnCount()) return {};
  const int beside = column - chart_.Cols();
  const auto& rows = beside < 0 ? chart_.Rows() : chart_.Curves[static_cast<std::size_t>(beside / 2)].Points;
  if (row >= static_cast<int>(rows.size())) return {};
  const auto& value =
      rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(beside < 0 ? column : beside % 2)];
  return value ? Number(*value, column % 2 == 0 ? extent_.width() : extent_.height()) : QString();
}

void ChartWidget::Read(qsizetype index) {
  if (index == read_) return;
  read_ = index;
  const bool reads = read_ >= 0;
  if (reads) {
    const QPointF point = plot_->Points()[read_];
    cross_->position->setCoords(point);
    ring_->position->setCoords(point);
    tag_->setText(Reading());
  }
  PlaceReader();
  plot_->layer(QStringLiteral("overlay"))->replot();
  Describe();
}

/// At the corner of the point where the text hides the fewest others.
void ChartWidget::PlaceReader() {
  for (QCPAbstractItem* const item : std::initializer_list<QCPAbstractItem*>{cross_, ring_, tag_}) {
    item->setVisible(read_ >= 0);
  }
  if (read_ < 0) return;
  const QSizeF size = QRectF(QFontMetrics(font()).boundingRect(QRect(), 0, tag_->text()))
                          .marginsAdded(tag_->padding())
                          .size();
  tag_->setPositionAlignment(Qt::AlignLeft | Qt::AlignTop);
  tag_->position->setCoords(plot_->PlaceBeside(ring_->position->pixelPosition(), size, ring_->size()));
}

QPointF ChartWidget::Place(const QPointF& point) const {
  return {plot_->xAxis->coordToPixel(point.x()), plot_->yAxis->coordToPixel(point.y())};
}

void ChartWidget::ReadNear(QPointF place) {
  qsizetype nearest = -1;
  double least = std::numeric_limits<double>::infinity();
  const QRect visible = plot_->axisRect()->rect();
  const QList<QPointF>& points = plot_->Points();
  for (qsizetype i = 0; visible.contains(place.toPoint()) && i < points.size(); ++i) {
    const QPointF at = Place(points[i]);
    const QPointF way = at - place;
    const double distance = QPointF::dotProduct(way, way);
    if (distance >= least || !visible.contains(at.toPoint())) continue;
    least = distance;
    nearest = i;
  }
  Read(nearest);
}

void ChartWidget::BringIntoView(QPointF point) {
  bool moved = false;
  const auto bring = [&moved](QCPAxis* axis, double coordinate) {
    if (axis->range().contains(coordinate)) return;
    const QCPRange range = axis->range();
    if (axis->scaleType() == QCPAxis::stLogarithmic) {
      const double half = std::sqrt(range.upper / range.lower);
      axis->setRange(coordinate / half, coordinate * half);
    } else {
      axis->setRange(coordinate, range.size(), Qt::AlignCenter);
    }
    moved = true;
  };
  bring(plot_->xAxis, point.x());
  bring(plot_->yAxis, point.y());
  if (moved) plot_->replot();
}

void ChartWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  chart_.Size = {width(), height()};
}

bool ChartWidget::eventFilter(QObject* plot, QEvent* event) {
  if (event->type() == QEvent::MouseMove) {
    const auto* const move = dynamic_cast<QMouseEvent*>(event);
    if (move->buttons() == Qt::NoButton) ReadNear(move->position());
  }
  if (event->type() == QEvent::Leave) Read(-1);
  return QWidget::eventFilter(plot, event);
}

void ChartWidget::keyPressEvent(QKeyEvent* event) {
  const auto step = [event]() -> qsizetype {
    switch (event->key()) {
      case Qt::Key_Right:
      case Qt::Key_Up:
        return 1;
      case Qt::Key_Left:
      case Qt::Key_Down:
        return -1;
      case Qt::Key_PageUp:
        return PageOfPoints;
      case Qt::Key_PageDown:
        return -PageOfPoints;
      default:
        return 0;
    }
  }();
  const qsizetype count = plot_->Points().size();
  if (step == 0 || count == 0) return QWidget::keyPressEvent(event);
  const qsizetype index = read_ >= 0 ? read_ + step : step > 0 ? 0 : count - 1;
  Read(std::clamp<qsizetype>(index, 0, count - 1));
  BringIntoView(plot_->Points()[read_]);
}

// See ChartPlot.h.
#include "desktop/chart/ChartPlot.h"

#include <cmath>
#include <limits>

#include "desktop/chart/ChartTicks.h"
#include "desktop/kit/Appearance.h"
#include "desktop/kit/Text.h"

namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Air = 0.04;  // of a range, left free beside the points
constexpr double ZoomStep = 0.8;
constexpr double WidestZoom = -15, DeepestZoom = 60;  // steps

/// The numbers of an axis, as many as find room.
class RoundTicker : public QCPAxisTicker {
 public:
  explicit RoundTicker(const QCPAxis& axis) : axis_(axis) {}

  void generate(const QCPRange& range, const QLocale&, QChar, int, QVector<double>& ticks,
                QVector<double>* subTicks, QVector<QString>* labels) override {
    const bool logarithmic = axis_.scaleType() == QCPAxis::stLogarithmic;
    const ChartTicks wanted =
        (logarithmic ? LogarithmicTicks : LinearTicks)(range.lower, range.upper, Most());
    ticks = QVector<double>(wanted.At.begin(), wanted.At.end());
    if (subTicks != nullptr) *subTicks = QVector<double>(wanted.Between.begin(), wanted.Between.end());
    if (labels == nullptr) return;
    labels->clear();
    for (const std::string& label : wanted.Labels) labels->append(ToQt(label));
  }

 private:
  int Most() const {
    const bool across = axis_.orientation() == Qt::Horizontal;
    const int em = QFontMetrics(axis_.tickLabelFont()).height();
    const QSize room = axis_.axisRect()->size();
    return std::clamp(across ? room.width() / (5 * em) : room.height() / (3 * em), 2, 10);
  }
  const QCPAxis& axis_;
};

QCPRange Padded(QCPRange range, bool fromNothing) {
  if (fromNothing && range.lower >= 0 && range.lower <= 0.1 * range.upper) {
    range.lower = 0;  // a curve that starts beside nothing is seen from there
  } else {
    range.lower -= Air * range.size();
  }
  range.upper += Air * range.size();
  if (range.size() > 0) return range;
  const double around = range.lower == 0 ? 1 : std::fabs(range.lower) / 2;
  return {range.lower - around, range.upper + around};
}

QCPRange LogarithmicallyPadded(const QCPRange& range) {
  const double air = range.size() > 0 ? std::pow(range.upper / range.lower, Air) : 2;
  return {range.lower / air, range.upper * air};
}

}  // namespace

ChartPlot::ChartPlot(const XYChart& chart, QWidget* parent) : QCustomPlot(parent), chart_(chart) {
  for (QCPAxis* const axis : {xAxis, yAxis}) {
    axis->setTicker(QSharedPointer<QCPAxisTicker>(new RoundTicker(*axis)));
    axis->setLabelPadding(fontMetrics().height() / 3);
  }
  setInteractions(QCP::iRangeDrag);
  setAutoAddPlottableToLegend(false);
  connect(this, &QCustomPlot::afterLayout, this, [this] { PlaceNotes(); });
  Load();
}

/// Readings come from its points; its line stays round at any zoom.
class ChartPlot::CircleCurve : public QCPCurve {
 public:
  CircleCurve(QCPAxis* x, QCPAxis* y, const Circle& circle) : QCPCurve(x, y), circle_(circle) {}

 protected:
  void draw(QCPPainter* painter) override {
    const QPointF corner(circle_.Radius, circle_.Radius);
    const auto pixel = [this](const QPointF& at) { return coordsToPixels(at.x(), at.y()); };
    applyDefaultAntialiasingHint(painter);
    painter->setPen(pen());
    painter->setBrush(Qt::NoBrush);
    painter->drawEllipse(QRectF(pixel(circle_.Centre - corner), pixel(circle_.Centre + corner)).normalized());
  }

 private:
  const Circle circle_;
};

template <class Curve, class... Shape>
Curve* ChartPlot::AddCurve(Shape... shape) {
  auto* const curve = new Curve(xAxis, yAxis, shape...);
  curve->setSelectable(QCP::stNone);
  return curve;
}

void ChartPlot::Load() {
  clearPlottables();
  lines_.clear();
  points_.clear();
  lineOf_.clear();
  const int count = RowLines() + static_cast<int>(chart_.Curves.size());
  for (int line = 0; line < count; ++line) LoadLine(line);
  marked_ = AddCurve();
  LoadMarked(0, chart_.Marked.Get());
  for (int line = RowLines(); line < count; ++line) LoadMarked(line, CurveOf(line)->Marked);
  xAxis->setLabel(Printed(chart_.XTitle.Get()));
  yAxis->setLabel(Printed(chart_.YTitle.Get()));
  LoadNotes();
  Restyle();
  ShowWhole();
}

const XYChart::Curve* ChartPlot::CurveOf(int line) const {
  return line < RowLines() ? nullptr : &chart_.Curves[static_cast<std::size_t>(line - RowLines())];
}

QString ChartPlot::LineName(int line) const {
  if (const XYChart::Curve* const curve = CurveOf(line)) return Printed(curve->Name);
  return line == 0 && names_.isEmpty() ? Printed(chart_.RowsName) : names_.value(line);
}

std::optional<QPointF> ChartPlot::Drawable(const std::optional<double>& x,
                                           const std::optional<double>& y) const {
  if (!x || !y || (IsLogarithmic() && (*x <= 0 || *y <= 0))) return std::nullopt;
  return QPointF(*x, *y);
}

ChartPlot::Breaking ChartPlot::PointsOf(int line) const {
  if (const auto replaced = replaced_.find(line); replaced != replaced_.end()) return replaced->second;
  const XYChart::Curve* const curve = CurveOf(line);
  const std::size_t column = curve == nullptr ? 2 * static_cast<std::size_t>(line) : 0;
  Breaking points;
  for (const XYChart::Row& row : curve == nullptr ? chart_.Rows() : curve->Points)
    points.push_back(Drawable(row[column], row[column + 1]));
  return points;
}

void ChartPlot::LoadLine(int line) {
  const auto circle = circles_.find(line);
  const Line drawn{circle == circles_.end() ? AddCurve() : AddCurve<CircleCurve>(circle->second), AddCurve()};
  drawn.Isolated->setLineStyle(QCPCurve::lsNone);
  if (line < names_.size()) {
    drawn.Curve->setName(names_[line]);
    drawn.Curve->addToLegend();
  }
  const Breaking points = PointsOf(line);
  const auto empty = [&points](std::size_t row) { return row >= points.size() || !points[row]; };
  for (std::size_t row = 0; row < points.size(); ++row) {
    const auto& point = points[row];
    const auto order = static_cast<double>(row);
    drawn.Curve->addData(order, point ? point->x() : NaN, point ? point->y() : NaN);
    if (!point) continue;
    points_.append(*point);
    lineOf_.append(line);
    if (empty(row - 1) && empty(row + 1)) drawn.Isolated->addData(order, point->x(), point->y());
  }
  lines_.push_back(drawn);
}

void ChartPlot::LoadMarked(int line, const std::vector<ChartSpan>& spans) {
  if (spans.empty()) return;
  const Breaking points = PointsOf(line);
  auto order = static_cast<double>(marked_->dataCount());
  for (const ChartSpan& span : spans) {
    for (int row = span.First; row <= span.Last; ++row) {
      const auto& point = points[static_cast<std::size_t>(row)];
      marked_->addData(order++, point ? point->x() : NaN, point ? point->y() : NaN);
    }
    marked_->addData(order++, NaN, NaN);
  }
}

QCPRange ChartPlot::Whole(bool across) const {
  if (points_.isEmpty()) return IsLogarithmic() ? QCPRange(1, 10) : QCPRange(0, 1);
  const auto value = [across](const QPointF& point) { return across ? point.x() : point.y(); };
  QCPRange range(value(points_.first()), value(points_.first()));
  for (const QPointF& point : points_) range.expand(value(point));
  if (const auto& present = chart_.Present; present && Drawable(present->X, present->Y))
    range.expand(value({present->X, present->Y}));
  return IsLogarithmic() ? LogarithmicallyPadded(range) : Padded(range, names_.isEmpty());
}

void ChartPlot::ShowWhole() {
  xAxis->setRange(Whole(true));
  yAxis->setRange(Whole(false));
  whole_ = true;
  zoomed_ = 0;
  Equalize();
}

void ChartPlot::Zoom(double steps, QPointF around) {
  steps = std::clamp(zoomed_ + steps, WidestZoom, DeepestZoom) - zoomed_;
  if (steps == 0) return;
  const double factor = std::pow(ZoomStep, steps);
  xAxis->scaleRange(factor, xAxis->pixelToCoord(around.x()));
  yAxis->scaleRange(factor, yAxis->pixelToCoord(around.y()));
  zoomed_ += steps;
  whole_ = false;
  replot(rpQueuedReplot);
}

void ChartPlot::LayOut(QSize size) {
  setViewport(QRect({}, size));
  FitHeading();
  // Twice: the numbers of an axis depend on its length, and the length on the room that the numbers take.
  updateLayout();
  updateLayout();
  PlaceNotes();
}

void ChartPlot::resizeEvent(QResizeEvent* event) {
  LayOut(event->size());
  QCustomPlot::resizeEvent(event);
  if (!chart_.UniformAxis) return;
  whole_ ? ShowWhole() : Equalize();
  replot(rpQueuedRefresh);
}

void ChartPlot::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons().testFlag(Qt::LeftButton)) whole_ = false;
  QCustomPlot::mouseMoveEvent(event);
}

void ChartPlot::mouseDoubleClickEvent(QMouseEvent*) {
  ShowWhole();
  replot();
}

void ChartPlot::wheelEvent(QWheelEvent* event) {
  Zoom(event->angleDelta().y() / 120.0, event->position());
  event->accept();
}

void ChartPlot::ShowAs(const ChartPlot& other) {
  SetLogarithmic(other.IsLogarithmic());
  xAxis->setRange(other.xAxis->range());
  yAxis->setRange(other.yAxis->range());
  Equalize();
}

void ChartPlot::Equalize() {
  if (!chart_.UniformAxis) return;
  // A wider range has other numbers, and these leave the axes another room.
  for (int pass = 0; pass < 3; ++pass) {
    updateLayout();
    const QSize room = axisRect()->size();
    if (room.isEmpty()) return;
    if (xAxis->range().size() / room.width() < yAxis->range().size() / room.height()) {
      xAxis->setScaleRatio(yAxis, 1);
    } else {
      yAxis->setScaleRatio(xAxis, 1);
    }
  }
}

void ChartPlot::SetLogarithmic(bool logarithmic) {
  if (logarithmic == IsLogarithmic()) return;
  for (QCPAxis* const axis : {xAxis, yAxis}) {
    axis->setScaleType(logarithmic ? QCPAxis::stLogarithmic : QCPAxis::stLinear);
    axis->grid()->setSubGridVisible(logarithmic);
  }
  Load();
}

QPen ChartPlot::MarkedPen(const QPalette& palette, double em) {
  return QPen(Appearance::Bad(palette), 0.2 * em, Qt::DotLine, Qt::RoundCap);
}

void ChartPlot::AddLegend() {
  axisRect()->insetLayout()->take(legend);
  auto* const below = new QCPLayoutGrid;
  const int row = plotLayout()->rowCount();
  plotLayout()->addElement(row, 0, below);
  plotLayout()->setRowStretchFactor(row, 0.001);
  below->addElement(0, 0, legend);
  below->addElement(0, 1, new QCPLayoutElement);  // takes the rest of the row
  below->setColumnStretchFactor(0, 0.001);
  legend->setBorderPen(Qt::NoPen);
  legend->setFillOrder(QCPLegend::foColumnsFirst);
  legend->setVisible(true);
}

void ChartPlot::NameLines(const QStringList& names) {
  if (names_.isEmpty()) AddLegend();
  names_ = names;
}

void ChartPlot::ReplaceLine(int pair, Breaking points) {
  replaced_[pair] = std::move(points);
}

void ChartPlot::DrawAsCircle(int pair, const QPointF& centre, double radius) {
  circles_[pair] = {centre, radius};
}

void ChartPlot::ShowLegend(const QString& marked) {
  AddLegend();
  marked_->setName(marked);
  marked_->addToLegend();
}

void ChartPlot::SetColours(const QPalette& colours) {
  colours_ = colours;
  Restyle();
}

void ChartPlot::Restyle() {
  const double em = QFontMetricsF(font()).height();
  const QColor ground = colours_.color(QPalette::Base);
  const QColor ink = colours_.color(QPalette::Text);
  const QColor thin = Appearance::Faint(colours_);
  setBackground(QBrush(ground));
  for (QCPAxis* const axis : {xAxis, yAxis}) {
    axis->setTickLabelFont(font());
    axis->setLabelFont(font());
    axis->setTickLabelColor(ink);
    axis->setLabelColor(ink);
    axis->setBasePen(QPen(thin, 1));
    axis->setTickPen(QPen(thin, 1));
    axis->setSubTickPen(QPen(thin, 1));
    axis->grid()->setPen(QPen(Appearance::Mixed(ground, ink, 0.14), 1));
    axis->grid()->setSubGridPen(QPen(Appearance::Mixed(ground, ink, 0.07), 1));
    axis->grid()->setZeroLinePen(QPen(Appearance::Mixed(ground, ink, 0.3), 1));
  }
  legend->setFont(font());
  legend->setTextColor(ink);
  legend->setBrush(Qt::NoBrush);
  legend->setIconSize(static_cast<int>(3 * em), static_cast<int>(em));
  for (int line = 0; line < static_cast<int>(lines_.size()); ++line) {
    const Line& drawn = lines_[static_cast<std::size_t>(line)];
    const XYChart::Curve* const curve = CurveOf(line);
    const QColor colour = LineColour(line);
    QPen pen(colour, 0.13 * em, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (curve != nullptr && curve->Dashed) {
      pen.setWidthF(0.09 * em);
      pen.setCapStyle(Qt::FlatCap);
      pen.setDashPattern({6, 4});
    }
    drawn.Curve->setPen(pen);
    drawn.Isolated->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssDisc, colour, colour, 0.45 * em));
  }
  marked_->setPen(MarkedPen(colours_, em));
  RestyleNotes();
}

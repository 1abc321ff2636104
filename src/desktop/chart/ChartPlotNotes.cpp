// The texts of a chart beside its axes: heading, names at the ends of lines, the present point. See
// ChartPlot.h.
#include <algorithm>
#include <limits>

#include "desktop/chart/ChartPlot.h"
#include "desktop/kit/Appearance.h"
#include "desktop/kit/Text.h"

namespace {

constexpr int LeastMargin = 15;  // pixels beside the axes, as the plot itself keeps

}  // namespace

QColor ChartPlot::LineColour(int line) const {
  const QColor ink = colours_.color(QPalette::Text);
  const XYChart::Curve* const curve = CurveOf(line);
  if (curve == nullptr && line == 0 && !names_.isEmpty()) return ink;  // the ground
  if (curve == nullptr || curve->Colour == 0) return Appearance::WaterSurface(colours_);
  return Appearance::Mixed(Appearance::Subsection(colours_, curve->Colour - 1), ink, 0.25);
}

QCPItemText* ChartPlot::AddText(const QString& text) {
  auto* const item = new QCPItemText(this);
  item->setLayer(QStringLiteral("legend"));  // above lines and axes
  item->setSelectable(false);
  item->setClipToAxisRect(false);
  item->setTextAlignment(Qt::AlignLeft);
  item->setPositionAlignment(Qt::AlignLeft | Qt::AlignTop);
  item->position->setType(QCPItemPosition::ptAbsolute);
  item->setText(text);
  return item;
}

void ChartPlot::LoadNotes() {
  LoadHeading();
  for (const EndName& name : endNames_) removeItem(name.Text);
  endNames_.clear();
  for (int line = 0; line < static_cast<int>(lines_.size()); ++line) {
    const XYChart::Curve* const curve = CurveOf(line);
    const bool named = curve == nullptr ? line == 0 && !chart_.RowsName.empty() : curve->NamedAtEnd;
    if (named) endNames_.push_back({AddText(LineName(line)), line});
  }
  if (present_ != nullptr) {
    removeItem(present_);
    removeItem(presentText_);
    present_ = nullptr;
  }
  const auto& present = chart_.Present;
  if (!present || !Drawable(present->X, present->Y)) return;
  present_ = new QCPItemTracer(this);
  present_->setLayer(QStringLiteral("legend"));
  present_->setSelectable(false);
  present_->setStyle(QCPItemTracer::tsCircle);
  present_->position->setCoords(present->X, present->Y);
  presentText_ = AddText(Printed(present->Text));
}

void ChartPlot::LoadHeading() {
  if (heading_.size() != chart_.Heading.size()) {
    for (QCPTextElement* const line : heading_) plotLayout()->remove(line);
    heading_.clear();
    plotLayout()->simplify();
    for (int row = 0; row < static_cast<int>(chart_.Heading.size()); ++row) {
      plotLayout()->insertRow(row);
      heading_.push_back(new QCPTextElement(this));
      plotLayout()->addElement(row, 0, heading_.back());
    }
    plotLayout()->setRowSpacing(0);
  }
}

void ChartPlot::FitHeading() {
  for (std::size_t i = 0; i < heading_.size(); ++i) {
    const QFontMetrics metrics(heading_[i]->font());
    heading_[i]->setText(metrics.elidedText(Printed(chart_.Heading[i]), Qt::ElideRight,
                                            viewport().width() - 2 * metrics.height()));
  }
}

void ChartPlot::RestyleNotes() {
  const double em = QFontMetricsF(font()).height();
  const QColor ground = colours_.color(QPalette::Base);
  const QColor ink = colours_.color(QPalette::Text);
  for (QCPTextElement* const line : heading_) {
    QFont headingFont = font();
    headingFont.setBold(heading_.size() > 1 && line == heading_.front());
    line->setFont(headingFont);
    line->setTextColor(ink);
    line->setMargins(QMargins(0, qRound(line == heading_.front() ? em / 2 : em / 8), 0, 0));
  }
  FitHeading();
  double widest = 0;
  for (const EndName& name : endNames_) {
    name.Text->setFont(font());
    name.Text->setColor(Appearance::Mixed(LineColour(name.Line), ink, 0.2));
    QColor veil = ground;
    veil.setAlphaF(0.8F);
    name.Text->setBrush(veil);
    widest = std::max(widest, SizeOf(*name.Text).width());
  }
  axisRect()->setMinimumMargins(
      {LeastMargin, LeastMargin, std::max(LeastMargin, qRound(widest + em / 4)), LeastMargin});
  if (present_ == nullptr) return;
  present_->setPen(QPen(ink, 0.1 * em));
  present_->setBrush(Appearance::WaterSurface(colours_));
  present_->setSize(0.6 * em);
  presentText_->setFont(font());
  presentText_->setColor(ink);
  presentText_->setBrush(ground);
  presentText_->setPen(QPen(Appearance::Mixed(ground, ink, 0.4), 1));
  const int padding = qRound(0.25 * em);
  presentText_->setPadding({padding, padding, padding, padding});
}

QSizeF ChartPlot::SizeOf(const QCPItemText& text) const {
  return QRectF(QFontMetrics(text.font()).boundingRect(QRect(), 0, text.text()))
      .marginsAdded(text.padding())
      .size();
}

QPointF ChartPlot::Pixel(const QPointF& point) const {
  return {xAxis->coordToPixel(point.x()), yAxis->coordToPixel(point.y())};
}

void ChartPlot::PlaceNotes() {
  PlaceEndNames();
  PlacePresent();
}

/// Each to the right of the last point in sight; below the names that are there already.
void ChartPlot::PlaceEndNames() {
  taken_.clear();
  const double gap = 0.55 * QFontMetricsF(font()).height();  // clear of the mark of the present point
  for (const EndName& name : endNames_) {
    const Breaking points = PointsOf(name.Line);
    const auto inSight = [this](const std::optional<QPointF>& point) {
      return point && xAxis->range().contains(point->x()) && yAxis->range().contains(point->y());
    };
    const auto last = std::find_if(points.rbegin(), points.rend(), inSight);
    name.Text->setVisible(last != points.rend());
    if (last == points.rend()) continue;
    const QPointF end = Pixel(**last);
    QRectF place({}, SizeOf(*name.Text));
    place.moveCenter(end);
    place.moveLeft(std::min(end.x() + gap, viewport().right() - place.width()));
    for (bool moved = true; moved;) {
      moved = false;
      for (const QRectF& other : taken_) {
        if (!other.intersects(place)) continue;
        place.moveTop(other.bottom() + 1);
        moved = true;
      }
    }
    taken_.append(place);
    name.Text->position->setCoords(place.topLeft());
  }
}

void ChartPlot::PlacePresent() {
  if (present_ == nullptr) return;
  const QPointF at = present_->position->pixelPosition();
  const bool inSight = axisRect()->rect().contains(at.toPoint());
  present_->setVisible(inSight);
  presentText_->setVisible(inSight);
  presentText_->position->setCoords(PlaceBeside(at, SizeOf(*presentText_), present_->size()));
}

QPointF ChartPlot::PlaceBeside(QPointF pixel, QSizeF size, double gap) const {
  double leastHidden = std::numeric_limits<double>::infinity();
  QPointF best;
  for (const QPointF way : {QPointF(1, 1), QPointF(-1, -1), QPointF(1, -1), QPointF(-1, 1)}) {
    const QPointF corner = pixel + way * gap;
    QRectF place(corner, size);
    if (way.x() < 0) place.moveRight(corner.x());
    if (way.y() < 0) place.moveBottom(corner.y());
    const double hidden = Hidden(place);
    if (hidden >= leastHidden) continue;
    leastHidden = hidden;
    best = place.topLeft();
  }
  return best;
}

/// The number of points that something in this place hides; a name counts as many, and too many where there
/// is no room for it.
double ChartPlot::Hidden(const QRectF& place) const {
  constexpr double Edge = 4;  // pixels
  if (!QRectF(viewport()).adjusted(Edge, Edge, -Edge, -Edge).contains(place))
    return std::numeric_limits<double>::max();
  constexpr double PointsOfName = 1000;
  const auto hides = [&](const QPointF& point) { return place.contains(Pixel(point)); };
  const auto covers = [&](const QRectF& name) { return name.intersects(place); };
  return static_cast<double>(std::ranges::count_if(points_, hides)) +
         PointsOfName * static_cast<double>(std::ranges::count_if(taken_, covers));
}

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
    removeItem(leader_);
    removeItem(present_);
    removeItem(presentText_);
    present_ = nullptr;
  }
  const auto& present = chart_.Present;
  if (!present || !Drawable(present->X, present->Y)) return;
  leader_ = new QCPItemLine(this);
  leader_->setLayer(QStringLiteral("legend"));
  leader_->setSelectable(false);
  for (QCPItemPosition* const end : {leader_->start, leader_->end}) end->setType(QCPItemPosition::ptAbsolute);
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
  leader_->setPen(QPen(Appearance::Mixed(ground, ink, 0.4), 1));
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

/// Each beside the last point in sight, where it hides the fewest points.
void ChartPlot::PlaceEndNames() {
  taken_.clear();
  const double gap = 0.7 * QFontMetricsF(font()).height();  // clear of the mark of the present point
  struct End {
    QPointF At;
    QCPItemText* Text;
  };
  std::vector<End> ends;
  for (const EndName& name : endNames_) {
    const Breaking points = PointsOf(name.Line);
    const auto inSight = [this](const std::optional<QPointF>& point) {
      return point && xAxis->range().contains(point->x()) && yAxis->range().contains(point->y());
    };
    const auto last = std::find_if(points.rbegin(), points.rend(), inSight);
    name.Text->setVisible(last != points.rend());
    if (last != points.rend()) ends.push_back({Pixel(**last), name.Text});
  }
  // From the top, so that names below each other stand in the order of their curves.
  std::ranges::sort(ends, {}, [](const End& end) { return end.At.y(); });
  for (const auto& [end, text] : ends) {
    const QSizeF size = SizeOf(*text);
    std::vector<QPointF> places;
    for (const int lines : {0, 1, -1, 2, -2, 3, -3}) {
      const double top = end.y() + (lines - 0.5) * size.height();
      places.emplace_back(end.x() + gap, top);
      places.emplace_back(end.x() - gap - size.width(), top);
    }
    const QPointF best = LeastHiding(places, size);
    taken_.append(QRectF(best, size));
    text->position->setCoords(best);
  }
}

void ChartPlot::PlacePresent() {
  if (present_ == nullptr) return;
  const QPointF at = present_->position->pixelPosition();
  const bool inSight = axisRect()->rect().contains(at.toPoint());
  present_->setVisible(inSight);
  presentText_->setVisible(inSight);
  const QRectF place(PlaceBeside(at, SizeOf(*presentText_), present_->size()), SizeOf(*presentText_));
  presentText_->position->setCoords(place.topLeft());
  // From the mark to the nearest corner of its words.
  leader_->setVisible(inSight);
  leader_->start->setCoords(at);
  leader_->end->setCoords(at.x() < place.center().x() ? place.left() : place.right(),
                          at.y() < place.center().y() ? place.top() : place.bottom());
}

QPointF ChartPlot::PlaceBeside(QPointF pixel, QSizeF size, double gap) const {
  std::vector<QPointF> places;
  for (const double away : {gap, 4 * gap, 8 * gap}) {
    for (const QPointF way : {QPointF(1, 1), QPointF(-1, -1), QPointF(1, -1), QPointF(-1, 1)}) {
      QRectF place(pixel + way * away, size);
      if (way.x() < 0) place.moveRight(pixel.x() - away);
      if (way.y() < 0) place.moveBottom(pixel.y() - away);
      const QPointF free = place.topLeft();
      place.moveRight(std::min(place.right(), Room().right()));
      place.moveLeft(std::max(place.left(), Room().left()));
      places.push_back(place.contains(pixel) ? free : place.topLeft());
    }
  }
  return LeastHiding(places, size);
}

/// The first of the best places.
QPointF ChartPlot::LeastHiding(const std::vector<QPointF>& places, QSizeF size) const {
  return *std::ranges::min_element(places, {}, [&](const QPointF& place) { return Hidden({place, size}); });
}

/// Where texts may stand.
QRectF ChartPlot::Room() const {
  const double air = QFontMetricsF(font()).height() / 2;
  QRectF room = QRectF(axisRect()->rect()).adjusted(0, -air, 0, 0);
  room.setRight(viewport().right() - air / 4);
  return room;
}

/// The number of points that something in this place hides; a name counts as many, and too many where there
/// is no room for it.
double ChartPlot::Hidden(const QRectF& place) const {
  if (!Room().contains(place)) return std::numeric_limits<double>::max();
  constexpr double PointsOfName = 1000;
  const auto hides = [&](const QPointF& point) { return place.contains(Pixel(point)); };
  const auto covers = [&](const QRectF& name) { return name.intersects(place); };
  return static_cast<double>(std::ranges::count_if(points_, hides)) +
         PointsOfName * static_cast<double>(std::ranges::count_if(taken_, covers));
}

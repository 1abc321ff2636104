// See SectionBackdrop.h.
#include "desktop/section/SectionBackdrop.h"

#include <algorithm>
#include <array>
#include <limits>

#include "desktop/chart/ChartPlot.h"
#include "desktop/kit/Appearance.h"
#include "desktop/kit/Text.h"

namespace {

constexpr int NameRows = 2;  // beside each other names would run into each other over narrow stretches
constexpr double Clear = 0.7;

}  // namespace

SectionBackdrop::SectionBackdrop(ChartPlot& plot, Content content)
    : QCPLayerable(&plot), plot_(plot), content_(std::move(content)) {
  const QString name = QStringLiteral("backdrop");
  plot.addLayer(name, plot.layer(QStringLiteral("grid")), QCustomPlot::limAbove);
  setLayer(name);
  if (content_.Stretches.empty()) return;
  QMargins margins = plot.axisRect()->minimumMargins();
  margins.setTop(NameRows * QFontMetrics(plot.font()).height() + 3 * BarHeight());
  plot.axisRect()->setMinimumMargins(margins);
}

void SectionBackdrop::applyDefaultAntialiasingHint(QCPPainter* painter) const {
  painter->setAntialiasing(true);
}

int SectionBackdrop::BarHeight() const {
  return QFontMetrics(plot_.font()).height() / 3;
}

QPointF SectionBackdrop::PixelOf(double x, double y) const {
  return {plot_.xAxis->coordToPixel(x), plot_.yAxis->coordToPixel(y)};
}

QColor SectionBackdrop::ColourOf(const SectionTable::Stretch& stretch) const {
  std::vector<std::string> different;
  for (const auto& each : content_.Stretches) {
    if (std::ranges::find(different, each.ManningN) == different.end()) different.push_back(each.ManningN);
  }
  const auto place = std::ranges::find(different, stretch.ManningN) - different.begin();
  return Appearance::Stretch(plot_.Colours(), static_cast<int>(place));
}

QPolygonF SectionBackdrop::Outline() const {
  QPolygonF outline;
  for (const auto& point : plot_.PointsOf(0)) {
    if (point) outline << PixelOf(point->x(), point->y());
  }
  return outline;
}

void SectionBackdrop::draw(QCPPainter* painter) {
  painter->save();
  painter->setClipRect(plot_.axisRect()->rect());
  DrawEarth(*painter);
  DrawWater(*painter);
  DrawStretches(*painter);
  painter->setClipping(false);
  DrawNames(*painter);
  painter->restore();
}

/// Below the outline, and beyond its ends as high as they are.
void SectionBackdrop::DrawEarth(QCPPainter& painter) const {
  QPolygonF earth = Outline();
  if (content_.IsPipe || earth.size() < 2) return;
  const QRectF frame = plot_.axisRect()->rect();
  const double left = std::min(frame.left(), earth.first().x());
  const double right = std::max(frame.right(), earth.last().x()) + 1;
  const double bottom = std::max(frame.bottom(), earth.boundingRect().bottom()) + 1;
  earth.prepend({left, earth.first().y()});
  earth.append({right, earth.last().y()});
  earth << QPointF(right, bottom) << QPointF(left, bottom);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Appearance::Earth(plot_.Colours()));
  painter.drawPolygon(earth);
}

void SectionBackdrop::DrawWater(QCPPainter& painter) const {
  painter.setPen(Qt::NoPen);
  painter.setBrush(Appearance::Water(plot_.Colours()));
  for (const auto& pool : content_.Pools) {
    QPolygonF water;
    for (const SectionTable::Point& point : pool) water << PixelOf(point.X, point.Y);
    painter.drawPolygon(water);
  }
}

/// A band of its own colour along the ground of each stretch.
void SectionBackdrop::DrawStretches(QCPPainter& painter) const {
  const ChartPlot::Breaking ground = plot_.PointsOf(0);
  for (const SectionTable::Stretch& stretch : content_.Stretches) {
    QPolygonF band;
    for (const auto& point : ground) {
      if (point && point->x() >= stretch.From && point->x() <= stretch.To)
        band << PixelOf(point->x(), point->y());
    }
    painter.setPen(QPen(ColourOf(stretch), 2 * BarHeight(), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolyline(band);
  }
}

/// Above the drawing a bar over each stretch and its n, where the names beside it leave room for that.
void SectionBackdrop::DrawNames(QCPPainter& painter) const {
  const QRectF frame = plot_.axisRect()->rect();
  const QFontMetricsF metrics(plot_.font());
  const double gap = BarHeight();
  std::array<double, NameRows> taken;
  taken.fill(-std::numeric_limits<double>::infinity());
  painter.setFont(plot_.font());
  for (const SectionTable::Stretch& stretch : content_.Stretches) {
    const double left = std::max(plot_.xAxis->coordToPixel(stretch.From), frame.left());
    const double right = std::min(plot_.xAxis->coordToPixel(stretch.To), frame.right());
    if (left >= right) continue;
    const QRectF bar(left, frame.top() - 1.5 * gap, right - left, gap);
    painter.fillRect(bar.adjusted(0.5, 0, -0.5, 0), ColourOf(stretch));
    const QString name = QStringLiteral("n = ") + ToQt(stretch.ManningN).trimmed();
    const double width = metrics.horizontalAdvance(name);
    const double start = std::clamp(bar.center().x() - width / 2, 0.0, std::max(0.0, plot_.width() - width));
    const auto row = std::ranges::find_if(taken, [start](double end) { return end < start; });
    if (row == taken.end()) continue;
    *row = start + width + Clear * metrics.height();
    const double rows = static_cast<double>(row - taken.begin());
    painter.setPen(plot_.Colours().color(QPalette::Text));
    painter.drawText(QPointF(start, bar.top() - metrics.descent() - rows * metrics.height()), name);
  }
}

// See SectionBackdrop.h.
#include "desktop/section/SectionBackdrop.h"

#include <algorithm>
#include <array>
#include <limits>

#include "desktop/chart/ChartPlot.h"
#include "desktop/kit/Appearance.h"
#include "desktop/kit/PipeWater.h"
#include "desktop/kit/Text.h"

namespace {

constexpr int NameRows = 2;  // beside each other names would run into each other over narrow parts
constexpr double Clear = 0.7;

}  // namespace

SectionBackdrop::SectionBackdrop(ChartPlot& plot, std::function<SectionDrawing()> now)
    : QCPLayerable(&plot),
      plot_(plot),
      now_(std::move(now)),
      plainMargin_(plot.axisRect()->minimumMargins().top()) {
  const QString name = QStringLiteral("backdrop");
  plot.addLayer(name, plot.layer(QStringLiteral("grid")), QCustomPlot::limAbove);
  setLayer(name);
  QObject::connect(&plot, &QCustomPlot::beforeReplot, this, [this, &plot] { Update(plot); });
  Update(plot);
}

void SectionBackdrop::Update(ChartPlot& plot) {
  drawing_ = now_();
  QMargins margins = plot.axisRect()->minimumMargins();
  margins.setTop(drawing_.Subsections.empty()
                     ? plainMargin_
                     : NameRows * QFontMetrics(plot.font()).height() + 3 * BarHeight());
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

QPolygonF SectionBackdrop::Ground() const {
  QPolygonF ground;
  for (const auto& point : plot_.PointsOf(0)) {
    if (point) ground << PixelOf(point->x(), point->y());
  }
  return ground;
}

void SectionBackdrop::draw(QCPPainter* painter) {
  painter->save();
  painter->setClipRect(plot_.axisRect()->rect());
  DrawEarth(*painter);
  DrawWater(*painter);
  DrawSubsections(*painter);
  painter->setClipping(false);
  DrawNames(*painter);
  painter->restore();
}

/// Below the outline, and beyond its ends as high as they are.
void SectionBackdrop::DrawEarth(QCPPainter& painter) const {
  QPolygonF earth = Ground();
  if (drawing_.Pipe || earth.size() < 2) return;
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
  for (const Outline::Line& pool : drawing_.Pools) {
    QPolygonF water;
    for (const Outline::Point& point : pool) water << PixelOf(point.X, point.Y);
    painter.drawPolygon(water);
  }
  if (!drawing_.Pipe) return;
  const auto& [centre, radius] = *drawing_.Pipe;
  painter.drawPath(WaterInPipe(
      QRectF(PixelOf(centre.X - radius, centre.Y + radius), PixelOf(centre.X + radius, centre.Y - radius)),
      PixelOf(0, drawing_.Level).y()));
}

/// A band of its own colour along the ground of each part.
void SectionBackdrop::DrawSubsections(QCPPainter& painter) const {
  const ChartPlot::Breaking ground = plot_.PointsOf(0);
  for (const Outline::Subsection& part : drawing_.Subsections) {
    QPolygonF band;
    for (const auto& point : ground) {
      if (point && point->x() >= part.From && point->x() <= part.To) band << PixelOf(point->x(), point->y());
    }
    painter.setPen(QPen(Appearance::Subsection(plot_.Colours(), part.Kind), 2 * BarHeight(), Qt::SolidLine,
                        Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolyline(band);
  }
}

/// Above the drawing a bar over each subsection and its n, where the names beside it leave room for that.
void SectionBackdrop::DrawNames(QCPPainter& painter) const {
  const QRectF frame = plot_.axisRect()->rect();
  const QFontMetricsF metrics(plot_.font());
  const double gap = BarHeight();
  std::array<double, NameRows> taken;
  taken.fill(-std::numeric_limits<double>::infinity());
  painter.setFont(plot_.font());
  for (const Outline::Subsection& part : drawing_.Subsections) {
    const double left = std::max(plot_.xAxis->coordToPixel(part.From), frame.left());
    const double right = std::min(plot_.xAxis->coordToPixel(part.To), frame.right());
    if (left >= right) continue;
    const QRectF bar(left, frame.top() - 1.5 * gap, right - left, gap);
    painter.fillRect(bar.adjusted(0.5, 0, -0.5, 0), Appearance::Subsection(plot_.Colours(), part.Kind));
    const QString name = QStringLiteral("n = ") + ToQt(part.ManningN).trimmed();
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

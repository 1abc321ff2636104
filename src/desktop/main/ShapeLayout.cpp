// See ShapeLayout.h.
#include "desktop/main/ShapeLayout.h"

#include <QTransform>
#include <algorithm>
#include <cmath>

namespace {

QSizeF SizeOf(const ShapeLabel& label, const QFontMetricsF& font) {
  // A letter of room for what is set in italics.
  return {font.horizontalAdvance(label.Plain()) + font.horizontalAdvance(QLatin1Char('n')), font.height()};
}

class Layout {
 public:
  Layout(const ShapeGeometry& shape, const ShapeLabels& labels, const QRectF& canvas,
         const QFontMetricsF& font)
      : shape_(shape), labels_(labels), canvas_(canvas), font_(font), em_(font.height()) {}

  ShapeLayout Made() {
    Map();
    result_.Ground = at_.map(shape_.Ground);
    for (const QPolygonF& pool : shape_.Water) result_.Water << at_.map(pool);
    MarkSurface();
    if (shape_.Pipe) {
      DimensionPipe();
    } else {
      CutEarth();
      DimensionOpenChannel();
    }
    return std::move(result_);
  }

 private:
  double Width(const ShapeLabel& label) const {
    return label.Symbol.isEmpty() ? 0 : SizeOf(label, font_).width();
  }

  /// Scales the shape into what the labels leave of the canvas. Usual numbers fit where only symbols stand,
  /// so that the drawing does not jump when they come.
  void Map() {
    const auto roomFor = [this](const ShapeLabel& label, const char* usual) {
      return std::max(Width(label), font_.horizontalAdvance(QLatin1String(usual)));
    };
    const double side =
        shape_.Pipe ? roomFor(labels_.Depth, "y = 0.000 ft") + 3 * em_
                    : std::max(roomFor(labels_.LeftSlope, "zL = 0.5"), Width(labels_.RightSlope)) + 1.5 * em_;
    const QMarginsF margins(shape_.Pipe ? 1.5 * em_ : side, 2.5 * em_, side, 4 * em_);
    QRectF room = canvas_.marginsRemoved(margins);
    room.setSize(room.size().expandedTo({em_, em_}));
    const ShapeScale scale = FitShape(shape_, room.size(), 9 * em_);
    const QRectF bounds = shape_.Bounds();
    const QPointF middle = room.center();
    at_ = QTransform(scale.Across, 0, 0, -scale.Upwards, middle.x() - scale.Across * bounds.center().x(),
                     middle.y() + scale.Upwards * bounds.center().y());
    Note(scale.Upwards / scale.Across);
  }

  void Note(double exaggeration) {
    if (shape_.Schematic) {
      result_.Note = QStringLiteral("Not to scale");
    } else if (std::abs(exaggeration - 1) > 0.01) {
      const double times = exaggeration > 1 ? exaggeration : 1 / exaggeration;
      result_.Note = QStringLiteral("%1 scale \u00D7 %2")
                         .arg(QLatin1String(exaggeration > 1 ? "Vertical" : "Horizontal"),
                              QString::number(times, 'g', 2));
    }
    result_.NotePlace = QRectF(canvas_.topLeft() + QPointF(0.7 * em_, 0.5 * em_),
                               QSizeF(font_.horizontalAdvance(result_.Note) + 1, em_));
  }

  void MarkSurface() {
    const QPolygonF* widest = nullptr;
    for (const QPolygonF& pool : result_.Water) {
      if (widest == nullptr || pool.boundingRect().width() > widest->boundingRect().width()) widest = &pool;
    }
    if (widest == nullptr) return;
    const QRectF pool = widest->boundingRect();
    result_.SurfaceMark = QLineF(pool.left(), pool.top(), pool.right(), pool.top());
  }

  void CutEarth() {
    result_.Ground.prepend({canvas_.left(), result_.Ground.first().y()});
    result_.Ground.append({canvas_.right(), result_.Ground.last().y()});
    result_.Earth = result_.Ground;
    result_.Earth << canvas_.bottomRight() << canvas_.bottomLeft();
  }

  /// Places the label with its edge or middle (0 left or top, 0.5 middle, 1 right or bottom) at the point.
  void Put(ShapeLabel label, QPointF point, double across, double down) {
    if (label.Symbol.isEmpty()) return;
    const QSizeF size = SizeOf(label, font_);
    label.Place = QRectF(point - QPointF(across * size.width(), down * size.height()), size);
    result_.Labels << label;
  }

  void DimensionOpenChannel() {
    const QPointF leftToe = at_.map(shape_.LeftToe);
    const QPointF rightToe = at_.map(shape_.RightToe);
    const QRectF bounds = at_.map(shape_.Ground).boundingRect();
    const double middle = shape_.LeftToe == shape_.RightToe && labels_.BaseWidth.Symbol.isEmpty()
                              ? bounds.center().x()
                              : (leftToe.x() + rightToe.x()) / 2;
    double below = bounds.bottom() + 0.4 * em_;
    if (!labels_.BaseWidth.Symbol.isEmpty()) {
      if (rightToe.x() - leftToe.x() > em_) {
        const double line = bounds.bottom() + 0.6 * em_;
        result_.Arrows << QLineF(leftToe.x(), line, rightToe.x(), line);
        for (const QPointF& toe : {leftToe, rightToe})
          result_.Extensions << QLineF(toe, {toe.x(), line + 0.3 * em_});
        below = line + 0.15 * em_;
      }
      Put(labels_.BaseWidth, {middle, below}, 0.5, 0);
      below += 1.15 * em_;
    }
    Put(labels_.Roughness, {middle, below}, 0.5, 0);
    DimensionDepth(middle);
    DimensionSlope(labels_.LeftSlope, leftToe, at_.map(shape_.Ground.first()), -1);
    DimensionSlope(labels_.RightSlope, rightToe, at_.map(shape_.Ground.last()), 1);
  }

  void DimensionDepth(double middle) {
    if (labels_.Depth.Symbol.isEmpty() || result_.Water.isEmpty()) return;
    const QRectF water = result_.Water.first().boundingRect();
    if (shape_.LeftToe == shape_.RightToe && labels_.BaseWidth.Symbol.isEmpty()) {
      // A surveyed section has no one depth: its water-surface elevation stands above the surface.
      Put(labels_.Depth, {result_.SurfaceMark.center().x(), result_.SurfaceMark.y1() - em_}, 0.5, 1);
      return;
    }
    result_.Arrows << QLineF(middle, water.top(), middle, water.bottom());
    // Beside the arrow, where the bank leaves room at the label's lower edge.
    const double lower = water.center().y() + 0.5 * em_;
    const double wet = (water.bottom() - lower) / std::max(water.height(), 1.0);
    const double toe = at_.map(shape_.RightToe).x();
    const double free = toe + wet * (water.right() - toe) - middle;
    if (water.height() > 1.4 * em_ && free > Width(labels_.Depth) + em_) {
      Put(labels_.Depth, {middle + 0.5 * em_, water.center().y()}, 0, 0.6);
    } else {
      Put(labels_.Depth, {middle, water.top() - em_}, 0.5, 1);
    }
  }

  /// A right triangle under the bank, 1 upwards and z across; only the label where the bank is too steep for
  /// it.
  void DimensionSlope(const ShapeLabel& label, QPointF toe, QPointF crest, int outwards) {
    if (label.Symbol.isEmpty()) return;
    const QPointF upper = toe + (crest - toe) * 0.72;
    const QPointF lower = toe + (crest - toe) * 0.36;
    const QPointF corner(upper.x(), lower.y());
    const double across = std::abs(upper.x() - lower.x());
    if (across < 1.2 * em_ || lower.y() - upper.y() < 0.8 * em_) {
      Put(label, {upper.x() + outwards * 0.6 * em_, (upper.y() + lower.y()) / 2}, outwards < 0 ? 1 : 0, 0.5);
      return;
    }
    result_.Extensions << QLineF(upper, corner) << QLineF(corner, lower);
    ShapeLabel one{QStringLiteral("1"), QString()};
    Put(one, {corner.x() + outwards * 0.2 * em_, (upper.y() + lower.y()) / 2}, outwards < 0 ? 1 : 0, 0.5);
    Put(label, {(corner.x() + lower.x()) / 2 + outwards * 0.5 * em_, corner.y() + 0.1 * em_},
        outwards < 0 ? 0.8 : 0.2, 0);
  }

  void DimensionPipe() {
    const QRectF wall = result_.Ground.boundingRect();
    const double line = wall.bottom() + 0.8 * em_;
    result_.Arrows << QLineF(wall.left(), line, wall.right(), line);
    for (const double x : {wall.left(), wall.right()}) {
      result_.Extensions << QLineF(x, wall.center().y(), x, line + 0.3 * em_);
    }
    Put(labels_.Diameter, {wall.center().x(), line + 0.15 * em_}, 0.5, 0);
    Put(labels_.Roughness, {wall.center().x(), line + 1.3 * em_}, 0.5, 0);
    const double surface = result_.SurfaceMark.y1();
    const double beside = wall.right() + 1.2 * em_;
    result_.Arrows << QLineF(beside, surface, beside, wall.bottom());
    result_.Extensions << QLineF(result_.SurfaceMark.x2(), surface, beside + 0.3 * em_, surface)
                       << QLineF(wall.center().x(), wall.bottom(), beside + 0.3 * em_, wall.bottom());
    Put(labels_.Depth, {beside + 0.5 * em_, (surface + wall.bottom()) / 2}, 0, 0.5);
  }

  const ShapeGeometry& shape_;
  const ShapeLabels& labels_;
  QRectF canvas_;
  QFontMetricsF font_;
  double em_;
  QTransform at_;
  ShapeLayout result_;
};

}  // namespace

ShapeLayout LayOutShape(const ShapeGeometry& shape, const ShapeLabels& labels, const QRectF& canvas,
                        const QFontMetricsF& font) {
  return Layout(shape, labels, canvas, font).Made();
}

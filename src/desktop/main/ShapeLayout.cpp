// See ShapeLayout.h.
#include "desktop/main/ShapeLayout.h"

#include <QTransform>
#include <algorithm>
#include <cmath>

#include "app/NumberDisplay.h"
#include "desktop/kit/PipeWater.h"
#include "desktop/kit/Text.h"

namespace {

QSizeF SizeOf(const ShapeLabel& label, const QFontMetricsF& font) {
  // A character's width of room for what is set in italics.
  return {font.horizontalAdvance(label.Plain()) + font.horizontalAdvance(QLatin1Char('n')), font.height()};
}

/// The edges of a label's place, or its middle, that stand at the point given for it.
struct Anchor {
  double Across, Down;  ///< 0 left or top, 0.5 middle, 1 right or bottom
};

class Layout {
 public:
  Layout(const ShapeGeometry& shape, const ShapeLabels& labels, const QRectF& canvas,
         const QFontMetricsF& font, const std::optional<ShapeScale>& held)
      : shape_(shape), labels_(labels), canvas_(canvas), font_(font), em_(font.height()), held_(held) {}

  ShapeLayout Made() {
    Map();
    Lines();
    if (shape_.Wall) {
      DimensionPipe();
    } else {
      CutEarth();
      shape_.Surveyed ? NameSection() : DimensionPrism();
    }
    NameCritical();
    return std::move(result_);
  }

 private:
  double Width(const ShapeLabel& label) const {
    return label.Symbol.isEmpty() ? 0 : SizeOf(label, font_).width();
  }

  QPointF At(const Outline::Point& point) const { return at_.map(QPointF(point.X, point.Y)); }
  QPolygonF At(const Outline::Line& line) const {
    QPolygonF polygon;
    for (const Outline::Point& point : line) polygon << At(point);
    return polygon;
  }
  QLineF LevelAt(const Outline::Line& line) const { return {At(line.front()), At(line.back())}; }

  /// What the labels leave of the canvas. Usual numbers fit where only symbols stand, so that the drawing
  /// does not jump when they come.
  QRectF Room() const {
    const auto roomFor = [this](const ShapeLabel& label, const char* usual) {
      return std::max(Width(label), font_.horizontalAdvance(QLatin1String(usual)));
    };
    const double side =
        shape_.Wall ? roomFor(labels_.Depth, "y = 0.000 ft") + 3 * em_
        : shape_.Surveyed
            ? Fade() + em_
            : std::max(roomFor(labels_.LeftSlope, "zL = 0.5"), Width(labels_.RightSlope)) + 1.5 * em_;
    QRectF room = canvas_.marginsRemoved({shape_.Wall ? 1.5 * em_ : side, 2.5 * em_, side, 4 * em_});
    room.setSize(room.size().expandedTo({em_, em_}));
    return room;
  }

  void Map() {
    const QRectF room = Room();
    const QRectF bounds = shape_.Bounds();
    const auto fits = [&](const ShapeScale& scale) {
      return scale.Across * bounds.width() <= room.width() &&
             scale.Upwards * bounds.height() <= room.height();
    };
    const ShapeScale scale =
        held_ && !shape_.Schematic && fits(*held_) ? *held_ : FitShape(shape_, room.size());
    if (!shape_.Schematic) result_.Scale = scale;
    const double height = scale.Upwards * bounds.height();
    // The bed of a channel stays where it is while the depth changes.
    const double bottom = shape_.Wall || shape_.Surveyed ? room.center().y() + height / 2
                                                         : room.top() + std::max(height, 0.6 * room.height());
    at_ =
        QTransform(scale.Across, 0, 0, -scale.Upwards, room.center().x() - scale.Across * bounds.center().x(),
                   bottom + scale.Upwards * bounds.top());
    Note(scale.Upwards / scale.Across);
  }

  void Note(double exaggeration) {
    if (shape_.Schematic) {
      result_.Note = QStringLiteral("Not to scale");
    } else if (std::abs(exaggeration - 1) > 0.01) {
      const double times = exaggeration > 1 ? exaggeration : 1 / exaggeration;
      result_.Note = QStringLiteral("%1 scale \u00D7 %2")
                         .arg(QLatin1String(exaggeration > 1 ? "Vertical" : "Horizontal"),
                              ToQt(FixedFormat(times, 1, 0).Text()));
    }
    result_.NotePlace = QRectF(canvas_.topLeft() + QPointF(0.7 * em_, 0.5 * em_),
                               QSizeF(font_.horizontalAdvance(result_.Note) + 1, em_));
  }

  void Lines() {
    result_.Ground = At(shape_.Ground);
    for (const Outline::Line& pool : shape_.Water) {
      result_.Water.addPolygon(At(pool));
      result_.Surfaces << QLineF(At(pool.front()), At(pool.back()));
    }
    if (shape_.Wall) {
      result_.Wall = at_.mapRect(shape_.Bounds());
      result_.Water = WaterInPipe(result_.Wall, At({0, shape_.Surface}).y());
      const Outline::Line surface = Outline::Surface(*shape_.Wall, shape_.Surface);
      if (!surface.empty()) result_.Surfaces << LevelAt(surface);
    }
    for (const Outline::Line& level : shape_.Critical) result_.Critical << LevelAt(level);
    if (!result_.Surfaces.isEmpty()) MarkSurface(Widest(result_.Surfaces));
  }

  static QLineF Widest(const QList<QLineF>& lines) {
    return *std::ranges::max_element(lines, {}, &QLineF::length);
  }

  /// The mark as large as the channel holds it, in a pipe at its middle; none where it could not be seen.
  void MarkSurface(const QLineF& surface) {
    const double y = surface.y1();
    double half = 0.3 * em_;
    while (half >= 2) {
      const double x =
          shape_.Wall ? surface.center().x() : surface.x1() + std::max(0.15 * surface.dx(), half + 0.1 * em_);
      const double top = y - 1.6 * half - 1;
      const bool inside = shape_.Wall ? Holds({x + half, top}) : surface.dx() > 2 * half + 0.2 * em_;
      if (!inside) {
        half *= 0.8;
        continue;
      }
      result_.SurfaceMark = QPolygonF({{x, y - 1}, {x - half, top}, {x + half, top}});
      const bool room = shape_.Wall ? Holds({x + 0.4 * half, y + 8}) : surface.length() >= 4 * em_;
      if (!room) return;
      for (const auto& [below, share] : {std::pair(3, 0.8), {6, 0.4}})
        result_.SurfaceRipples << QLineF(x - share * half, y + below, x + share * half, y + below);
      return;
    }
  }

  /// True well inside the pipe's wall.
  bool Holds(QPointF point) const {
    return QLineF(result_.Wall.center(), point).length() < result_.Wall.width() / 2 - 0.2 * em_;
  }

  /// How far ground that nobody has typed is still seen.
  double Fade() const { return 1.5 * em_; }

  void CutEarth() {
    QPolygonF& ground = result_.Ground;
    const double bottom = canvas_.bottom();
    double left = canvas_.left();
    double right = canvas_.right();
    if (shape_.Surveyed) {
      left = ground.first().x() - Fade();
      right = ground.last().x() + Fade();
      const double fade = Fade() / (right - left);
      result_.Known = Shading({left, 0}, {right, 0}, {{0, 0}, {fade, 1}, {1 - fade, 1}, {1, 0}});
    } else {
      // The banks go on upwards as steep as they are.
      const double top = ground.first().y() - Fade();
      const auto up = [this](const QPointF& toe, const QPointF& crest) {
        return crest + (crest - toe) * Fade() / std::max(toe.y() - crest.y(), 1e-6);
      };
      result_.Known = Shading({0, top}, {0, ground.first().y()}, {{0, 0}, {1, 1}});
      ground.prepend(up(ground[1], ground[0]));
      ground.append(up(ground[ground.size() - 2], ground.last()));
      left = std::min(left, ground.first().x());
      right = std::max(right, ground.last().x());
    }
    result_.Earth = ground;
    result_.Earth.prepend({left, ground.first().y()});
    result_.Earth << QPointF(right, ground.last().y()) << QPointF(right, bottom) << QPointF(left, bottom);
  }

  static QLinearGradient Shading(QPointF from, QPointF to,
                                 std::initializer_list<std::pair<double, double>> opacities) {
    QLinearGradient shading(from, to);
    for (const auto& [place, opacity] : opacities)
      shading.setColorAt(place, QColor::fromRgbF(0, 0, 0, static_cast<float>(opacity)));
    return shading;
  }

  QRectF PlaceOf(const ShapeLabel& label, QPointF point, Anchor anchor) const {
    const QSizeF size = SizeOf(label, font_);
    return {point - QPointF(anchor.Across * size.width(), anchor.Down * size.height()), size};
  }

  void Put(ShapeLabel label, QPointF point, Anchor anchor) {
    if (label.Symbol.isEmpty()) return;
    label.Place = PlaceOf(label, point, anchor);
    result_.Labels << label;
  }

  static bool Crosses(const QRectF& place, const QLineF& line) {
    const QPointF corners[] = {place.topLeft(), place.topRight(), place.bottomRight(), place.bottomLeft(),
                               place.topLeft()};
    for (int i = 0; i < 4; ++i) {
      if (line.intersects(QLineF(corners[i], corners[i + 1]), nullptr) == QLineF::BoundedIntersection)
        return true;
    }
    return place.contains(line.p1());
  }

  bool CrossesWall(const QRectF& place) const {
    if (!place.intersects(result_.Wall)) return false;
    return !Holds(place.topLeft()) || !Holds(place.topRight()) || !Holds(place.bottomLeft()) ||
           !Holds(place.bottomRight());
  }

  bool IsFree(const QRectF& place) const {
    const auto crossed = [&place](const QLineF& line) { return Crosses(place, line); };
    for (const auto* const lines :
         {&result_.Surfaces, &result_.Critical, &result_.Arrows, &result_.Extensions}) {
      if (std::ranges::any_of(*lines, crossed)) return false;
    }
    for (qsizetype i = 1; i < result_.Ground.size(); ++i) {
      if (crossed({result_.Ground[i - 1], result_.Ground[i]})) return false;
    }
    for (const ShapeLabel& label : result_.Labels) {
      if (label.Place.intersects(place)) return false;
    }
    return canvas_.contains(place) && !place.intersects(result_.NotePlace) && !CrossesWall(place) &&
           !place.intersects(result_.SurfaceMark.boundingRect());
  }

  /// At an end of its line, where nothing else stands, or with a sample of the line in a corner.
  void NameCritical() {
    if (result_.Critical.isEmpty() || labels_.Critical.Symbol.isEmpty()) return;
    const QLineF level = Widest(result_.Critical);
    const double gap = 0.5 * em_;
    const QPointF left = level.p1();
    const QPointF right = level.p2();
    const std::pair<QPointF, Anchor> places[] = {
        {left - QPointF(gap, 0), {1, 0.5}},  {right + QPointF(gap, 0), {0, 0.5}},
        {left + QPointF(gap, -2), {0, 1}},   {left + QPointF(gap, 2), {0, 0}},
        {right + QPointF(-gap, -2), {1, 1}}, {right + QPointF(-gap, 2), {1, 0}}};
    for (const auto& [point, anchor] : places) {
      if (IsFree(PlaceOf(labels_.Critical, point, anchor))) return Put(labels_.Critical, point, anchor);
    }
    const QPointF corner = canvas_.topRight() + QPointF(-0.7 * em_, 0.5 * em_);
    for (const int row : {0, 1}) {
      const QPointF point = corner + QPointF(0, row * em_);
      const QRectF place = PlaceOf(labels_.Critical, point, {1, 0});
      if (!IsFree(place.adjusted(-3 * em_, 0, 0, 0))) continue;
      Put(labels_.Critical, point, {1, 0});
      const double middle = place.center().y();
      result_.Critical << QLineF(place.left() - 2.5 * em_, middle, place.left() - 0.5 * em_, middle);
      return;
    }
  }

  void DimensionPrism() {
    const QPointF leftToe = At(shape_.LeftToe);
    const QPointF rightToe = At(shape_.RightToe);
    const double middle = (leftToe.x() + rightToe.x()) / 2;
    double below = leftToe.y() + 0.4 * em_;
    if (!labels_.BaseWidth.Symbol.isEmpty()) {
      if (rightToe.x() - leftToe.x() > em_) {
        const double line = leftToe.y() + 0.6 * em_;
        result_.Arrows << QLineF(leftToe.x(), line, rightToe.x(), line);
        for (const QPointF& toe : {leftToe, rightToe})
          result_.Extensions << QLineF(toe, {toe.x(), line + 0.3 * em_});
        below = line + 0.15 * em_;
      }
      Put(labels_.BaseWidth, {middle, below}, {0.5, 0});
      below += 1.15 * em_;
    }
    Put(labels_.Roughness, {middle, below}, {0.5, 0});
    DimensionDepth(middle);
    DimensionSlope(labels_.LeftSlope, leftToe, At(shape_.Ground.front()), -1);
    DimensionSlope(labels_.RightSlope, rightToe, At(shape_.Ground.back()), 1);
  }

  void DimensionDepth(double middle) {
    if (labels_.Depth.Symbol.isEmpty() || result_.Surfaces.isEmpty()) return;
    const QRectF water = result_.Water.boundingRect();
    result_.Arrows << QLineF(middle, water.top(), middle, water.bottom());
    // Beside the arrow, where the bank leaves room at the label's lower edge.
    const double lower = water.center().y() + 0.5 * em_;
    const double wet = (water.bottom() - lower) / std::max(water.height(), 1.0);
    const double toe = At(shape_.RightToe).x();
    const double free = toe + wet * (water.right() - toe) - middle;
    if (water.height() > 1.4 * em_ && free > Width(labels_.Depth) + em_) {
      Put(labels_.Depth, {middle + 0.5 * em_, water.center().y()}, {0, 0.6});
      return;
    }
    // Or above the water, clear of the banks.
    const QPointF above(middle, water.top() - em_);
    double across = 0.5;
    for (const double other : {1.1, -0.1}) {
      if (!IsFree(PlaceOf(labels_.Depth, above, {across, 1}))) across = other;
    }
    Put(labels_.Depth, above, {across, 1});
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
      Put(label, {upper.x() + outwards * 0.6 * em_, (upper.y() + lower.y()) / 2},
          {outwards < 0 ? 1.0 : 0.0, 0.5});
      return;
    }
    result_.Extensions << QLineF(upper, corner) << QLineF(corner, lower);
    ShapeLabel one{QStringLiteral("1"), QString()};
    Put(one, {corner.x() + outwards * 0.2 * em_, (upper.y() + lower.y()) / 2},
        {outwards < 0 ? 1.0 : 0.0, 0.5});
    Put(label, {(corner.x() + lower.x()) / 2 + outwards * 0.5 * em_, corner.y() + 0.1 * em_},
        {outwards < 0 ? 0.8 : 0.2, 0});
  }

  /// A surveyed section has no one depth: its water-surface elevation stands above the surface.
  void NameSection() {
    const QRectF bounds = At(shape_.Ground).boundingRect();
    if (!result_.Surfaces.isEmpty()) {
      const QPointF surface = Widest(result_.Surfaces).center();
      Put(labels_.Depth, {surface.x(), surface.y() - em_}, {0.5, 1});
    }
    if (shape_.Parts.empty()) {
      Put(labels_.Roughness, {bounds.center().x(), bounds.bottom() + 0.4 * em_}, {0.5, 0});
    }
    for (const Outline::Subsection& part : shape_.Parts) NamePart(part, bounds.bottom());
  }

  /// The part's n below it, in the first of two rows where it meets no other, under a bar that separates it
  /// from its neighbours.
  void NamePart(const Outline::Subsection& part, double bottom) {
    const double left = At({part.From, 0}).x();
    const double right = At({part.To, 0}).x();
    const double bar = bottom + 0.5 * em_;
    if (shape_.Parts.size() > 1) {
      ShapeLayout::Part drawn{part.Kind, QRectF(left, bar, right - left, 0.3 * em_), {}};
      for (const Outline::Point& point : shape_.Ground)
        if (point.X >= part.From && point.X <= part.To) drawn.Ground << At(point);
      result_.Parts << drawn;
    }
    const ShapeLabel name{labels_.Roughness.Symbol, QLatin1String(" = ") + ToQt(part.ManningN).trimmed()};
    for (const int row : {0, 1}) {
      const QPointF point((left + right) / 2, bar + 0.4 * em_ + row * em_);
      if (!IsFree(PlaceOf(name, point, {0.5, 0}))) continue;
      Put(name, point, {0.5, 0});
      return;
    }
  }

  void DimensionPipe() {
    const QRectF wall = result_.Wall;
    const double line = wall.bottom() + 0.8 * em_;
    result_.Arrows << QLineF(wall.left(), line, wall.right(), line);
    for (const double x : {wall.left(), wall.right()}) {
      result_.Extensions << QLineF(x, wall.center().y(), x, line + 0.3 * em_);
    }
    Put(labels_.Diameter, {wall.center().x(), line + 0.15 * em_}, {0.5, 0});
    Put(labels_.Roughness, {wall.center().x(), line + 1.3 * em_}, {0.5, 0});
    const double surface = At({0, shape_.Surface}).y();
    const double beside = wall.right() + 1.2 * em_;
    result_.Arrows << QLineF(beside, surface, beside, wall.bottom());
    // The water ends at the wall: the line to its level begins clear of it.
    const double end = result_.Surfaces.isEmpty() ? wall.center().x() : result_.Surfaces.first().x2();
    result_.Extensions << QLineF(end + 0.4 * em_, surface, beside + 0.3 * em_, surface)
                       << QLineF(wall.center().x(), wall.bottom(), beside + 0.3 * em_, wall.bottom());
    Put(labels_.Depth, {beside + 0.5 * em_, (surface + wall.bottom()) / 2}, {0, 0.5});
  }

  const ShapeGeometry& shape_;
  const ShapeLabels& labels_;
  QRectF canvas_;
  QFontMetricsF font_;
  double em_;
  const std::optional<ShapeScale>& held_;
  QTransform at_;
  ShapeLayout result_;
};

}  // namespace

ShapeLayout LayOutShape(const ShapeGeometry& shape, const ShapeLabels& labels, const QRectF& canvas,
                        const QFontMetricsF& font, const std::optional<ShapeScale>& held) {
  return Layout(shape, labels, canvas, font, held).Made();
}

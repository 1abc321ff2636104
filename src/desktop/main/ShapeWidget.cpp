// See ShapeWidget.h.
#include "desktop/main/ShapeWidget.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QPainter>

#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "desktop/kit/Appearance.h"
#include "desktop/kit/Bind.h"
#include "desktop/kit/Text.h"
#include "engine/NumberText.h"

namespace {

/// The number in a box that is shown; absent when there is none.
std::optional<double> NumberIn(const TextBox& box) {
  if (!IsNumeric(box.Text.Get())) return std::nullopt;
  return LeadingNumber(box.Text.Get());
}

/// The symbol of a box with its text and unit, when that is a number; nothing for a box that is hidden. A
/// side slope is drawn with its 1.
ShapeLabel LabelOf(const frmMain& form, TextBox frmMain::*of) {
  const Field& field = FieldOf(of);
  const TextBox& box = form.*of;
  if (!box.Visible) return {};
  ShapeLabel label{QLatin1String(field.Symbol.Current()), {}};
  if (!IsNumeric(box.Text.Get()) || box.Length() > 14) return label;
  label.Value = QLatin1String(" = ") + ToQt(box.Text.Get()).trimmed();
  if (field.Unit != nullptr) label.Value += QLatin1Char(' ') + ToQt((form.*field.Unit).Caption.Get());
  return label;
}

std::vector<QPointF> Points() {
  std::vector<QPointF> points;
  for (std::size_t row = 1; row <= static_cast<std::size_t>(ChannelState.IrregPointCount); ++row) {
    const auto& point = ChannelState.IrregPoints[row];
    points.emplace_back(point[1].Number(), point[2].Number());
  }
  return points;
}

ShapeInputs InputsOf(const frmMain& form) {
  const int units = ChannelState.UnitsEorM;
  ShapeInputs inputs{ChannelState.ChannelType,
                     NumberIn(form.tbDepth),
                     NumberIn(form.tbBaseWidth),
                     NumberIn(form.tbSSL),
                     NumberIn(form.tbSSR),
                     NumberIn(form.tbDiameter),
                     Points()};
  if (inputs.Diameter)
    *inputs.Diameter *= UnitFactor(units, Units::Diameter) / UnitFactor(units, Units::Length);
  return inputs;
}

ShapeLabels LabelsOf(const frmMain& form) {
  ShapeLabels labels{LabelOf(form, &frmMain::tbDepth),    LabelOf(form, &frmMain::tbBaseWidth),
                     LabelOf(form, &frmMain::tbSSL),      LabelOf(form, &frmMain::tbSSR),
                     LabelOf(form, &frmMain::tbDiameter), LabelOf(form, &frmMain::tbMann)};
  if (CurrentChannelType().IsSurveyed()) labels.Roughness.Symbol = QStringLiteral("n");
  return labels;
}

void DrawArrow(QPainter& painter, const QLineF& line, double em) {
  painter.drawLine(line);
  const double head = std::min(0.45 * em, line.length() / 3);
  for (const QLineF& end : {line, QLineF(line.p2(), line.p1())}) {
    QLineF barb(end);
    barb.setLength(head);
    for (const double angle : {-20.0, 20.0}) {
      barb.setAngle(end.angle() + angle);
      painter.drawLine(barb);
    }
  }
}

void DrawLabel(QPainter& painter, const ShapeLabel& label) {
  const QPointF from(label.Place.left() + 1, label.Place.top() + painter.fontMetrics().ascent());
  DrawSymbol(painter, from, label.Symbol);
  painter.drawText(from + QPointF(SymbolWidth(label.Symbol, painter.font()), 0), label.Value);
}

/// A line of many sides, in parts: the painter takes them sooner than the whole.
void DrawInPieces(QPainter& painter, const QPolygonF& line) {
  constexpr qsizetype Sides = 15;
  for (qsizetype from = 0; from + 1 < line.size(); from += Sides) {
    painter.drawPolyline(line.mid(from, Sides + 1));
  }
}

/// The triangle and the short lines that mean a free water surface.
void DrawSurfaceMark(QPainter& painter, const QLineF& surface, double em) {
  const double x = surface.x1() + 0.15 * surface.dx();
  const double y = surface.y1();
  const double half = 0.3 * em;
  painter.drawPolygon(
      QPolygonF({{x, y - 1}, {x - half, y - 1.6 * half - 1}, {x + half, y - 1.6 * half - 1}}));
  if (surface.length() < 4 * em) return;
  painter.drawLine(QPointF(x - 0.8 * half, y + 3), QPointF(x + 0.8 * half, y + 3));
  painter.drawLine(QPointF(x - 0.4 * half, y + 6), QPointF(x + 0.4 * half, y + 6));
}

/// To a screen reader a cross-section is a picture in words.
QAccessibleInterface* ReadShape(const QString&, QObject* object) {
  auto* const shape = dynamic_cast<ShapeWidget*>(object);
  return shape == nullptr ? nullptr : new QAccessibleWidget(shape, QAccessible::Graphic);
}

}  // namespace

ShapeWidget::ShapeWidget(frmMain& form, QWidget* parent) : QWidget(parent), form_(form) {
  QAccessible::installFactory(ReadShape);
  setAccessibleName(QStringLiteral("Cross-section"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  const auto refresh = [this] { Refresh(); };
  for (const Field& field : Fields()) {
    if (field.Result == ResultWhen::Always) continue;
    TextBox& box = form.*field.Box;
    Bind::Follow(box.Text, this, refresh);
    Bind::Follow(box.Visible, this, refresh);
  }
  Bind::Follow(form.lblChanType.Caption, this, refresh);
  // The unit system shows in both.
  Bind::Follow(form.lblDepthUnits.Caption, this, refresh);
  Bind::Follow(form.lblDiameterUnits.Caption, this, refresh);
}

QSize ShapeWidget::minimumSizeHint() const {
  const int em = fontMetrics().height();
  return {18 * em, 13 * em};
}

bool ShapeWidget::event(QEvent* event) {
  // The points of a section change in another window.
  if (event->type() == QEvent::WindowActivate) Refresh();
  return QWidget::event(event);
}

void ShapeWidget::Refresh() {
  inputs_ = InputsOf(form_);
  labels_ = LabelsOf(form_);
  Describe();
  update();
}

void ShapeWidget::Describe() {
  QStringList parts{ToQt(inputs_.Type)};
  for (const ShapeLabel* const label : {&labels_.Depth, &labels_.BaseWidth, &labels_.LeftSlope,
                                        &labels_.RightSlope, &labels_.Diameter, &labels_.Roughness}) {
    if (!label->Value.isEmpty()) parts << label->Plain();
  }
  setAccessibleDescription(parts.join(QLatin1String(", ")));
}

void ShapeWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPalette& colours = palette();
  const double em = fontMetrics().height();
  const QRect canvas = rect().adjusted(1, 1, -1, -1);
  painter.fillRect(rect(), Appearance::Line(colours));
  painter.fillRect(canvas, colours.base());
  painter.setClipRect(canvas);

  const ShapeGeometry shape = ShapeOf(inputs_);
  const ShapeLayout layout = LayOutShape(shape, labels_, canvas, QFontMetricsF(font()));
  const QColor ink = colours.color(QPalette::Text);
  const QColor thin = Appearance::Faint(colours);

  painter.setPen(Qt::NoPen);
  painter.setBrush(Appearance::Earth(colours));
  painter.drawPolygon(layout.Earth);
  painter.setBrush(Appearance::Water(colours));
  for (const QPolygonF& pool : layout.Water) painter.drawPolygon(pool);
  painter.setPen(QPen(Appearance::WaterSurface(colours), 1.5));
  for (const QPolygonF& pool : layout.Water) painter.drawLine(pool.first(), pool.last());
  painter.setBrush(Qt::NoBrush);
  if (!layout.SurfaceMark.isNull()) DrawSurfaceMark(painter, layout.SurfaceMark, em);
  // The many short sides of a pipe need no rounding where they meet.
  painter.setPen(shape.Pipe ? QPen(ink, 0.22 * em, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin)
                            : QPen(ink, 0.14 * em, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  DrawInPieces(painter, layout.Ground);
  painter.setPen(QPen(thin, 1));
  painter.drawLines(layout.Extensions);
  painter.setPen(QPen(ink, 1.2));
  for (const QLineF& arrow : layout.Arrows) DrawArrow(painter, arrow, em);
  for (const ShapeLabel& label : layout.Labels) DrawLabel(painter, label);
  painter.setPen(thin);
  painter.drawText(layout.NotePlace, Qt::TextDontClip, layout.Note);
}

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

constexpr int PauseInTyping = 700;  // milliseconds

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

ShapeInputs InputsOf(const frmMain& form) {
  const ChannelRecord& record = ChannelState;
  ShapeInputs inputs{record.ChannelType,
                     NumberIn(form.tbDepth),
                     NumberIn(form.tbBaseWidth),
                     NumberIn(form.tbSSL),
                     NumberIn(form.tbSSR),
                     NumberIn(form.tbDiameter),
                     {},
                     NumberIn(form.tbCritD),
                     {},
                     record.UnitsEorM};
  if (inputs.Diameter)
    *inputs.Diameter *=
        UnitFactor(record.UnitsEorM, Units::Diameter) / UnitFactor(record.UnitsEorM, Units::Length);
  if (CurrentChannelType().IsSurveyed()) {
    inputs.Ground = Outline::Survey(record.IrregPoints, record.IrregPointCount);
    inputs.Parts = Outline::Subsections(record.IrregPoints, record.IrregPointCount);
  }
  return inputs;
}

/// True when at most one dimension differs, as after a keystroke: results follow it.
bool OneTyped(const ShapeInputs& before, const ShapeInputs& now) {
  const int differ = (before.BaseWidth != now.BaseWidth) + (before.LeftSlope != now.LeftSlope) +
                     (before.RightSlope != now.RightSlope) + (before.Diameter != now.Diameter);
  return differ <= 1 && before.Type == now.Type && before.Ground == now.Ground &&
         before.UnitSystem == now.UnitSystem;
}

ShapeLabels LabelsOf(const frmMain& form) {
  ShapeLabels labels{LabelOf(form, &frmMain::tbDepth),    LabelOf(form, &frmMain::tbBaseWidth),
                     LabelOf(form, &frmMain::tbSSL),      LabelOf(form, &frmMain::tbSSR),
                     LabelOf(form, &frmMain::tbDiameter), LabelOf(form, &frmMain::tbMann),
                     LabelOf(form, &frmMain::tbCritD)};
  if (CurrentChannelType().IsSurveyed()) labels.Roughness.Symbol = QStringLiteral("n");
  return labels;
}

/// The colour where the shading is black, less of it where that fades.
QBrush Tinted(QLinearGradient shading, const QColor& colour) {
  QGradientStops stops = shading.stops();
  for (QGradientStop& stop : stops) {
    const float opacity = stop.second.alphaF();
    stop.second = colour;
    stop.second.setAlphaF(opacity);
  }
  shading.setStops(stops);
  return shading;
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
  typing_.setSingleShot(true);
  typing_.setInterval(PauseInTyping);
  connect(&typing_, &QTimer::timeout, this, qOverload<>(&QWidget::update));
  const auto refresh = [this] { Refresh(); };
  Bind::Follow(form.tbCritD.Text, this, refresh);
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

/// Its content is taken at once, its layout is computed when it is painted.
void ShapeWidget::Refresh() {
  const ShapeLabels labels = LabelsOf(form_);
  QStringList parts{ToQt(ChannelState.ChannelType)};
  for (const ShapeLabel* const label :
       {&labels.Depth, &labels.BaseWidth, &labels.LeftSlope, &labels.RightSlope, &labels.Diameter,
        &labels.Roughness, &labels.Critical}) {
    if (!label->Value.isEmpty()) parts << label->Plain();
  }
  setAccessibleDescription(parts.join(QLatin1String(", ")));
  update();
}

/// While a number is being typed the scale stays as it is, where the shape fits.
void ShapeWidget::LayOut(const QRectF& canvas) {
  const ShapeInputs now = InputsOf(form_);
  if (now != inputs_) {
    OneTyped(inputs_, now) ? typing_.start() : typing_.stop();
    inputs_ = now;
  }
  const std::optional<ShapeScale> held = typing_.isActive() ? layout_.Scale : std::nullopt;
  layout_ = LayOutShape(ShapeOf(inputs_), LabelsOf(form_), canvas, QFontMetricsF(font()), held);
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

  LayOut(canvas);
  const QColor ink = colours.color(QPalette::Text);
  const QColor thin = Appearance::Faint(colours);

  painter.setPen(Qt::NoPen);
  painter.setBrush(Tinted(layout_.Known, Appearance::Earth(colours)));
  painter.drawPolygon(layout_.Earth);
  painter.setBrush(Appearance::Water(colours));
  painter.drawPath(layout_.Water);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Appearance::WaterSurface(colours), 1.5, Qt::SolidLine, Qt::FlatCap));
  painter.drawLines(layout_.Surfaces);
  painter.drawPolygon(layout_.SurfaceMark);
  painter.drawLines(layout_.SurfaceRipples);
  painter.setPen(QPen(ink, 1, Qt::DashLine, Qt::FlatCap));
  painter.drawLines(layout_.Critical);
  for (const ShapeLayout::Part& part : layout_.Parts) {
    const QColor colour = Appearance::Subsection(colours, part.Kind);
    painter.fillRect(part.Bar.adjusted(0.5, 0, -0.5, 0), colour);
    painter.setPen(QPen(colour, 0.4 * em, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolyline(part.Ground);
  }
  painter.setPen(QPen(Tinted(layout_.Known, ink), 0.14 * em, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(layout_.Ground);
  painter.setPen(QPen(ink, 0.22 * em));
  painter.drawEllipse(layout_.Wall);
  painter.setPen(QPen(thin, 1));
  painter.drawLines(layout_.Extensions);
  painter.setPen(QPen(ink, 1.2));
  for (const QLineF& arrow : layout_.Arrows) DrawArrow(painter, arrow, em);
  for (const ShapeLabel& label : layout_.Labels) DrawLabel(painter, label);
  painter.setPen(thin);
  painter.drawText(layout_.NotePlace, Qt::TextDontClip, layout_.Note);
}

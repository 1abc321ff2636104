// See RatingCurve.h.
#include "rating/RatingCurve.h"

#include <utility>

namespace {

constexpr int MostRows = 250;

/// Beyond the ends of a range, whose numbers are rounded, the present problem is still a part of it.
constexpr double RangeMargin = 0.02;

/// The spans of a series in which the flow falls as the level rises, or the reverse.
class FallingFlow {
 public:
  /// Takes in the record's level and flow as the row `index`; the rows come in order.
  void Add(int index) {
    const double level = ChannelState.Depth.Number();
    const double flow = ChannelState.Flow.Number();
    const bool falls = index > 0 && ((level > level_ && flow < flow_) || (level < level_ && flow > flow_));
    if (falls && !spans_.empty() && spans_.back().Last == index - 1) {
      spans_.back().Last = index;
    } else if (falls) {
      spans_.push_back({index - 1, index});
    }
    level_ = level;
    flow_ = flow;
  }
  const std::vector<ChartSpan>& Spans() const { return spans_; }

 private:
  std::vector<ChartSpan> spans_;
  double level_ = 0, flow_ = 0;
};

int ColumnOf(TextBox frmMain::*box) {
  return FieldOf(box).RatingColumn;
}

XYChart::Row PointOf(const RatingColumn& across, const RatingColumn& up) {
  const auto x = across.Number();
  const auto y = up.Number();
  return x && y ? XYChart::Row{x, y} : XYChart::Row{std::nullopt, std::nullopt};
}

}  // namespace

GraphAxes GraphAxes::For(const RatingRangeRecord& range) {
  const RatingColumns columns = CurrentRatingColumns();
  const auto column = [&columns](int place) { return columns.at(static_cast<std::size_t>(place)); };
  const int across = FindVariedInput(range.VaryCode)->RatingColumn;
  const int up = range.GraphYColumn;
  const int depth = ColumnOf(&frmMain::tbDepth);
  const RatingColumn critical = column(ColumnOf(&frmMain::tbCritD));
  GraphAxes axes{column(across), column(up), false, column(across), column(up)};
  if (up == depth) {
    axes.CriticalUp = critical;
  } else if (across == depth && up == ColumnOf(&frmMain::tbFlow)) {
    axes.CriticalAcross = critical;
  } else {
    return axes;
  }
  axes.ShowsDepth = true;
  return axes;
}

void GraphAxes::Swap() {
  std::swap(Across, Up);
  std::swap(CriticalAcross, CriticalUp);
}

RatingCurve TraceCurve(const frmMain& main, const RatingRangeRecord& range, const GraphAxes& axes) {
  RatingCurve curve;
  FallingFlow falling;
  RatingGaps blanks;
  curve.Outcome = RunRatingSeries(main, range, LastValue::AsStepped, [&](int row) {
    if (row > MostRows) return;
    for (const RatingColumn* const column : {&axes.Across, &axes.Up}) {
      if (!column->Number()) blanks.Add(WhyBlank(column->Cell));
    }
    curve.Points.push_back(PointOf(axes.Across, axes.Up));
    if (axes.ShowsDepth) curve.Critical.push_back(PointOf(axes.CriticalAcross, axes.CriticalUp));
    falling.Add(row - 1);
  });
  curve.Outcome.Gaps.Add(blanks);
  curve.Falling = falling.Spans();
  return curve;
}

std::optional<ChartPoint> PresentPoint(const frmMain& main, const RatingRangeRecord& range,
                                       const GraphAxes& axes) {
  const double first = range.RangeMin.Number();
  const double last = range.RangeMax.Number();
  const double margin = RangeMargin * (last - first);
  const EngineValue typed = ChannelState.*FindVariedInput(range.VaryCode)->Cell;
  if (!(typed.Number() >= first - margin && typed.Number() <= last + margin)) return std::nullopt;
  const auto named = [](const RatingColumn& column) { return column.NameAndValue(column.Text()); };
  std::optional<ChartPoint> present;
  RunRatingSeries(main, {range.VaryCode, range.GraphYColumn, typed, typed, 1}, LastValue::AsStepped,
                  [&](int) {
                    const XYChart::Row point = PointOf(axes.Across, axes.Up);
                    if (point[0])
                      present = ChartPoint{*point[0], *point[1], named(axes.Across) + '\n' + named(axes.Up)};
                  });
  return present;
}

// See frmGraph.h.
#include "rating/frmGraph.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "app/Declarations.h"
#include "app/ExportFile.h"
#include "app/FormStuff.h"
#include "app/LastUsed.h"
#include "platform/Services.h"
#include "print/Print.h"
#include "rating/GraphHeading.h"
#include "rating/PlotList.h"
#include "rating/frmGraphSettings.h"

namespace {

bool AnyPoint(const std::vector<XYChart::Row>& rows) {
  return std::ranges::any_of(rows, [](const XYChart::Row& row) { return row[0].has_value(); });
}

/// The critical depth depends on neither.
bool MovesFlowAlone(const Field& input) {
  return input.Cell == &ChannelRecord::Slope || input.Cell == &ChannelRecord::ManningN;
}

}  // namespace

frmGraph::frmGraph(const frmMain& main)
    : RatingWindow("frmGraph", main), RangeControls(this), FamilyControls(this) {
  lblMarked.Caption = "Marked: the flow falls as the level rises";
  lblPlot.Caption = "Plot";
  lblVary.Caption = "Vary";
  mnuViewSwap.Caption = "Swap Axes";
  checked_.push_back(&tbFamily);
  RefuseLongTexts(tbFamily);
  mnuViewSwap.Click = [this] { mnuViewSwap_Click(); };
  cbxVary.Click = [this] { cbxVary_Click(); };
  cbxFamily.Click = [this] { cbxFamily_Click(); };
  cbxY.Click = tbMin.Change = tbMax.Change = [this] { Redraw(); };
  tbFamily.Change = [this] {
    Redraw();
    RememberFamily();
  };
}

bool frmGraph::LoadSeries() {
  ShowChoices();
  return LoadGraph();
}

void frmGraph::ShowSettings() {
  frmGraphSettings settings;
  TheServices().windows.ShowModal(settings);
}

void frmGraph::ShowChoices() {
  filling_ = true;
  ShowPlotInForce(cbxY);
  ShowRangeInForce();
  tbMin.Text = ShownWhole(RatingRange.RangeMin.Number());
  tbMax.Text = ShownWhole(RatingRange.RangeMax.Number());
  filling_ = false;
  MarkEnds();
  TakeFamily();
  lblRange.Caption = GraphExtent(RatingRange);
}

void frmGraph::cbxVary_Click() {
  const bool filled = filling_;
  filling_ = true;
  Propose();
  const Field* const before = FamilyInput();
  ListFamilies(Varied());
  if (FamilyInput() != before) ProposeFamily(main_);
  ForgetEdits();
  filling_ = filled;
  Redraw();
}

void frmGraph::cbxFamily_Click() {
  if (filling_) return;
  filling_ = true;
  ProposeFamily(main_);
  ForgetEdits();
  filling_ = false;
  Redraw();
}

void frmGraph::mnuViewSwap_Click() {
  mnuViewSwap.Checked = !mnuViewSwap.Checked;
  LoadGraph();
}

void frmGraph::TakeFamily() {
  if (FormStuff::Mark(tbFamily, FamilyOffence())) family_ = TypedFamily(main_);
}

void frmGraph::Redraw() {
  if (filling_) return;
  MarkEnds();
  TakeFamily();
  const std::string offence = FirstOffence();
  lblRange.Caption = offence.empty() ? GraphExtent(InGraphSteps(TypedRange())) : offence;
  if (!offence.empty()) return;
  const RatingRangeRecord shown = RatingRange;
  RatingRange = InGraphSteps(TypedRange());
  RatingRange.GraphYColumn = PlottedColumn(cbxY);
  if (LoadGraph()) {
    RememberRange(shown);
  } else {
    RatingRange = shown;
  }
}

void frmGraph::RememberRange(const RatingRangeRecord& before) const {
  const auto ends = [](const RatingRangeRecord& range) {
    return std::tuple(range.VaryCode, range.RangeMin.Number(), range.RangeMax.Number());
  };
  if (ends(RatingRange) == ends(before)) return;
  LastUsed().Ranges[RatingRange.VaryCode] = {
      RatingRange.RangeMin.Number(), RatingRange.RangeMax.Number(), {}};
}

/// Those typed, not those that were proposed.
void frmGraph::RememberFamily() const {
  if (filling_ || !tbFamily.ToolTip.Get().empty() || family_.Members.empty()) return;
  std::vector<double>& values = LastUsed().Families[family_.Input->PageQuantity];
  values.clear();
  for (const Member& member : family_.Members) values.push_back(member.Value);
}

bool frmGraph::LoadGraph() {
  const Field* const varied = FindVariedInput(RatingRange.VaryCode);
  GraphAxes axes = GraphAxes::For(RatingRange);
  if (mnuViewSwap.Checked) axes.Swap();
  const std::string critical = FieldOf(&frmMain::tbCritD).Caption.Current();
  const auto present = PresentPoint(main_, RatingRange, axes);
  std::vector<XYChart::Curve> curves;
  RatingOutcome outcome;
  const auto trace = [&] {
    RatingCurve curve = TraceCurve(main_, RatingRange, axes);
    outcome.Cancelled |= curve.Outcome.Cancelled;
    outcome.Points += curve.Outcome.Points;
    outcome.Gaps.Add(family_.Members.empty() ? curve.Outcome.Gaps : curve.Outcome.Gaps.OfMany());
    return curve;
  };
  int colour = 0;
  for (const Member& member : family_.Members) {
    EngineValue& cell = ChannelState.*family_.Input->Cell;
    if (cell.Number() == member.Value) continue;  // the problem itself
    cell = member.Value;
    RatingCurve curve = trace();
    ++colour;
    if (AnyPoint(curve.Critical) && !MovesFlowAlone(*family_.Input))
      curves.push_back({member.Label + ", " + critical, std::move(curve.Critical), {}, colour, true, false});
    curves.push_back({member.Label, std::move(curve.Points), curve.Falling, colour});
  }
  // The last one, whose last point stays in the record.
  RatingCurve own = trace();
  if (outcome.Cancelled) return false;
  if (AnyPoint(own.Critical)) curves.push_back({critical, std::move(own.Critical), {}, 0, true});
  lblMarked.Visible = !own.Falling.empty() || std::ranges::any_of(curves, [](const XYChart::Curve& curve) {
    return !curve.Marked.empty();
  });
  const bool drawn = AnyPoint(own.Points) || std::ranges::any_of(curves, AnyPoint, &XYChart::Curve::Points);
  MSChart1.XTitle = axes.Across.Header();
  MSChart1.YTitle = axes.Up.Header();
  MSChart1.UniformAxis = false;
  MSChart1.Marked = own.Falling;
  MSChart1.Heading = GraphHeading(main_, {varied, family_.Input});
  MSChart1.RowsName = family_.Present;
  MSChart1.Curves = std::move(curves);
  MSChart1.Present = present;
  MSChart1.Load(std::move(own.Points), 2);
  ShowMissing(outcome.Gaps.Text(outcome.Points), drawn);
  return true;
}

void frmGraph::mnuEditCopy_Click() {
  ChartPicture::Copy(MSChart1);
}

void frmGraph::mnuPrint_Click() {
  Print::ToPrinter(Print::Graph(main_, MSChart1));
}

void frmGraph::mnuPrintPreview_Click() {
  Print::ToPreview(Print::Graph(main_, MSChart1));
}

void frmGraph::mnuFileExport_Click() {
  ChartPicture::Export(MSChart1, "Export Graph");
}

// See frmGraph.h.
#include "rating/frmGraph.h"

#include <algorithm>

#include "app/Declarations.h"
#include "app/ExportFile.h"
#include "platform/Services.h"
#include "print/Print.h"
#include "rating/RatingColumn.h"
#include "rating/RatingSeries.h"
#include "rating/frmGraphSettings.h"

namespace {

/// A range of a few hundred neighbouring doubles has steps rounded down, and more points than intended.
constexpr int MostRows = 250;

/// The stretches of a series in which the flow falls as the level rises, or the reverse.
class FallingFlow {
 public:
  /// Takes in the record's level and flow as the row `index`; the rows come in order.
  void Add(int index) {
    const double level = ChannelState.Depth.Number();
    const double flow = ChannelState.Flow.Number();
    const bool falls = index > 0 && ((level > level_ && flow < flow_) || (level < level_ && flow > flow_));
    if (falls && !stretches_.empty() && stretches_.back().Last == index - 1) {
      stretches_.back().Last = index;
    } else if (falls) {
      stretches_.push_back({index - 1, index});
    }
    level_ = level;
    flow_ = flow;
  }
  const std::vector<ChartStretch>& Stretches() const { return stretches_; }

 private:
  std::vector<ChartStretch> stretches_;
  double level_ = 0, flow_ = 0;
};

}  // namespace

frmGraph::frmGraph(const frmMain& main) : RatingWindow("frmGraph", main) {
  lblMarked.Caption = "Marked: the flow falls as the level rises";
}

bool frmGraph::LoadSeries() {
  return LoadGraph();
}

void frmGraph::ShowSettings() {
  frmGraphSettings settings;
  TheServices().windows.ShowModal(settings);
}

bool frmGraph::LoadGraph() {
  const RatingColumns columns = CurrentRatingColumns();
  const Field* const varied = FindVariedInput(RatingRange.VaryCode);
  const RatingColumn& x = columns.at(static_cast<std::size_t>(varied->RatingColumn));
  const RatingColumn& y = columns.at(static_cast<std::size_t>(RatingRange.GraphYColumn));
  std::vector<XYChart::Row> rows;
  FallingFlow falling;
  RatingGaps blanks;
  RatingOutcome outcome = RunRatingSeries(main_, RatingRange, LastValue::AsStepped, [&](int row) {
    if (row > MostRows) return;
    const auto across = x.Number();
    const auto up = y.Number();
    if (!up) blanks.Add(WhyBlank(y.Cell));
    rows.push_back(across && up ? XYChart::Row{across, up} : XYChart::Row{std::nullopt, std::nullopt});
    falling.Add(row - 1);
  });
  if (outcome.Cancelled) return false;
  outcome.Gaps.Add(blanks);
  MSChart1.XTitle = x.Header();
  MSChart1.YTitle = y.Header();
  MSChart1.UniformAxis = false;
  MSChart1.Marked = falling.Stretches();
  const bool drawn = std::ranges::any_of(rows, [](const XYChart::Row& row) { return row[0].has_value(); });
  MSChart1.Load(std::move(rows), 2);
  ShowMissing(outcome.Gaps.Text(outcome.Points), drawn);
  lblMarked.Visible = !falling.Stretches().empty();
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

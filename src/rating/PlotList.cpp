// See PlotList.h.
#include "rating/PlotList.h"

#include <algorithm>
#include <vector>

#include "app/main/Fields.h"
#include "rating/RatingSeries.h"

namespace {

constexpr int Steps = 200;

std::vector<const Field*> PlottedResults() {
  std::vector<const Field*> results;
  for (const Field& field : Fields()) {
    if (field.IsResult() && field.ListName != nullptr) results.push_back(&field);
  }
  return results;
}

}  // namespace

void ShowPlotInForce(ComboBox& list) {
  const auto results = PlottedResults();
  std::vector<std::string> names;
  names.reserve(results.size());
  for (const Field* const each : results) names.emplace_back(each->ListName);
  list.Items = names;
  const auto plotted = std::ranges::find(results, RatingRange.GraphYColumn, &Field::RatingColumn);
  list.ListIndex = plotted == results.end() ? -1 : static_cast<int>(plotted - results.begin());
}

int PlottedColumn(const ComboBox& list) {
  if (list.ListIndex < 0) return RatingRange.GraphYColumn;
  return PlottedResults()[static_cast<std::size_t>(list.ListIndex)]->RatingColumn;
}

RatingRangeRecord InGraphSteps(RatingRangeRecord range) {
  range.RangeStep = (range.RangeMax.Number() - range.RangeMin.Number()) / Steps;
  return range;
}

std::string GraphExtent(const RatingRangeRecord& range) {
  return Counted(PlanRatingSeries(range, LastValue::AsStepped).Points, "point");
}

// A chart of points: its columns are pairs of x and y, each pair a line. An empty value breaks its line.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Controls.h"

/// Neighbouring rows of a chart, by index; both ends belong to it.
struct ChartStretch {
  int First = 0;
  int Last = 0;
  bool operator==(const ChartStretch&) const = default;
};

/// Extent of a chart's picture, in any one unit: its proportions are what counts.
struct ChartSize {
  int Width = 0;
  int Height = 0;
};

class XYChart : public Control {
 public:
  using Control::Control;
  using Row = std::vector<std::optional<double>>;

  const std::vector<Row>& Rows() const { return rows_; }
  int Cols() const { return cols_; }

  /// Replaces the points.
  void Load(std::vector<Row> rows, int cols) {
    rows_ = std::move(rows);
    cols_ = cols;
    if (LoadView) LoadView();
  }

  Property<std::string> XTitle, YTitle;
  Property<bool> UniformAxis{false};  ///< one scale for both axes: a circle is drawn round
  /// Parts of the lines that are drawn so that they stand out.
  Property<std::vector<ChartStretch>> Marked;

  // Set by the view.
  ChartSize Size{4, 3};  ///< as shown; without a view the proportions of an old screen
  std::function<void()> LoadView;
  std::function<void()> CopyView;  ///< puts the picture of the chart on the clipboard
  /// The picture as a file's content, by the file's extension: "png", "svg" or "pdf"; empty when it cannot be
  /// made.
  std::function<std::string(const std::string& extension)> PictureView;

 private:
  std::vector<Row> rows_;
  int cols_ = 0;
};

// A chart of points: its columns are pairs of x and y, each pair a line. An empty value breaks its line.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Controls.h"

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

  std::function<void()> LoadView;  // set by the view

 private:
  std::vector<Row> rows_;
  int cols_ = 0;
};

// A chart of points: its columns are pairs of x and y, each pair a line. An empty value breaks its line.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Controls.h"

/// Neighbouring rows of a chart, by index; both ends belong to it.
struct ChartSpan {
  int First = 0;
  int Last = 0;
  bool operator==(const ChartSpan&) const = default;
};

/// A marked point, in words as well.
struct ChartPoint {
  double X = 0, Y = 0;
  std::string Text;
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

  /// A line beside those of the rows.
  struct Curve {
    std::string Name;
    std::vector<Row> Points;        ///< a pair of x and y each
    std::vector<ChartSpan> Marked;  ///< as of the rows
    int Colour = 0;                 ///< 0: as the first line of the rows; equal numbers, equal colours
    bool Dashed = false;
    bool NamedAtEnd = true;
  };

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
  Property<std::vector<ChartSpan>> Marked;

  // What is drawn beside the rows, from the next loading on.
  std::vector<std::string> Heading;  ///< lines above the axes
  std::string RowsName;              ///< of the first line of the rows, at its end; empty: none
  std::vector<Curve> Curves;
  std::optional<ChartPoint> Present;  ///< marked, and its words beside it

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

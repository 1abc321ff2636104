// The answers of the surveyed examples, from exact clipping of the polygon between bed and banks.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numeric>

#include "app/frmMain.h"
#include "engine/ChannelState.h"
#include "program/Program.h"
#include "section/IrregTable.h"
#include "support/FakeServices.h"

namespace {

struct Corner {
  double X, Y;
};
using Polygon = std::vector<Corner>;

/// The part of the polygon where `side` is not negative; `side` is linear in x and y.
Polygon Clipped(const Polygon& polygon, const std::function<double(const Corner&)>& side) {
  Polygon kept;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Corner& a = polygon[i];
    const Corner& b = polygon[(i + 1) % polygon.size()];
    const double sideA = side(a);
    const double sideB = side(b);
    if (sideA >= 0) kept.push_back(a);
    if ((sideA < 0) != (sideB < 0)) {
      const double part = sideA / (sideA - sideB);
      kept.push_back({a.X + part * (b.X - a.X), a.Y + part * (b.Y - a.Y)});
    }
  }
  return kept;
}

/// Area by Gauss's formula, about the first corner: a survey far off its datum loses no digits.
double AreaOf(const Polygon& polygon) {
  double twice = 0;
  for (std::size_t i = 1; i + 1 < polygon.size(); ++i) {
    const Corner& o = polygon[0];
    const Corner& a = polygon[i];
    const Corner& b = polygon[i + 1];
    twice += (a.X - o.X) * (b.Y - o.Y) - (b.X - o.X) * (a.Y - o.Y);
  }
  return std::abs(twice) / 2;
}

struct Wetted {
  double Area = 0, Perimeter = 0, Width = 0;
};

/// A surveyed bed in feet, with its n from the point on where each holds.
class Bed {
 public:
  Bed() {
    for (std::size_t row = 1; row <= static_cast<std::size_t>(ChannelState.IrregPointCount); ++row) {
      const auto& point = ChannelState.IrregEnginePoints[row];
      if (!point[3].IsEmptyText()) stretches_.push_back({point[1].Number(), point[3].Number()});
      bed_.push_back({point[1].Number(), point[2].Number()});
    }
  }

  Wetted Below(double level) const { return Below(level, bed_.front().X, bed_.back().X); }

  double Flow(double level, double slope) const {
    double flow = 0;
    for (std::size_t i = 0; i < stretches_.size(); ++i) {
      const double end = i + 1 < stretches_.size() ? stretches_[i + 1].From : bed_.back().X;
      const Wetted wetted = Below(level, stretches_[i].From, end);
      if (wetted.Perimeter == 0) continue;
      flow += 1.485919 / stretches_[i].ManningN * std::pow(wetted.Area, 5.0 / 3) /
              std::pow(wetted.Perimeter, 2.0 / 3) * std::sqrt(slope);
    }
    return flow;
  }

 private:
  struct Stretch {
    double From, ManningN;
  };

  Wetted Below(double level, double from, double to) const {
    Polygon room = bed_;
    room.push_back({bed_.back().X, level + 1000});
    room.push_back({bed_.front().X, level + 1000});
    room = Clipped(room, [&](const Corner& corner) { return level - corner.Y; });
    room = Clipped(room, [&](const Corner& corner) { return corner.X - from; });
    room = Clipped(room, [&](const Corner& corner) { return to - corner.X; });
    Wetted wetted;
    wetted.Area = AreaOf(room);
    for (std::size_t i = 0; i + 1 < bed_.size(); ++i) {
      const auto [low, high] = std::minmax(bed_[i].Y, bed_[i + 1].Y);
      if (bed_[i].X < from || bed_[i + 1].X > to || low >= level) continue;
      const double part = high < level ? 1 : (level - low) / (high - low);
      const double across = bed_[i + 1].X - bed_[i].X;
      wetted.Perimeter += part * std::hypot(across, high - low);
      wetted.Width += part * across;
    }
    return wetted;
  }

  Polygon bed_;
  std::vector<Stretch> stretches_;
};

class SurveyedExamples : public testing::Test {
 protected:
  class NoWindows : public WindowHost {
    void Open(Form&) override {}
    void Wait(Form&) override {}
  };

  SurveyedExamples() { program_.Start(); }

  void Open(const std::string& file) {
    program_.Main.OpenProject(EXAMPLES "/" + file);
    ASSERT_TRUE(fakes_.messageBox.Boxes.empty());
    const Bed bed;
    const double level = ChannelState.Depth.Number();
    const double flow = ChannelState.Flow.Number();
    const Wetted wetted = bed.Below(level);
    EXPECT_NEAR(flow / bed.Flow(level, ChannelState.Slope.Number()), 1, flowTolerance_);
    EXPECT_NEAR(ChannelState.Area.Number() / wetted.Area, 1, 1e-10);
    EXPECT_NEAR(ChannelState.WettedPerimeter.Number() / wetted.Perimeter, 1, 1e-10);
    EXPECT_NEAR(ChannelState.TopWidth.Number() / wetted.Width, 1, 1e-10);
    EXPECT_NEAR(ChannelState.Velocity.Number() / (flow / wetted.Area), 1, 1e-10);
    // At the critical level Q^2 T = g A^3.
    const Wetted critical = bed.Below(ChannelState.CriticalDepth.Number());
    EXPECT_NEAR(flow * flow * critical.Width / (32.17405 * std::pow(critical.Area, 3)), 1, 1e-5);
  }

  std::string Shown(const TextBox& box) const { return box.Text; }

  FakeServices fakes_;
  NoWindows windows_;
  Program program_{fakes_.With(windows_)};
  double flowTolerance_ = 1e-10;
};

TEST_F(SurveyedExamples, StreamWithOverbanksInFlood) {
  flowTolerance_ = 1e-6;  // the level is found to 1e-6 ft
  Open("stream-overbanks.fwd");
  EXPECT_EQ(ChannelState.IrregPointCount, 21);
  EXPECT_EQ(Shown(program_.Main.tbDepth), "110.205");
  EXPECT_EQ(Shown(program_.Main.tbVelocity), "4.54");
  EXPECT_EQ(Shown(program_.Main.tbCritD), "108.039");
}

TEST_F(SurveyedExamples, BraidedReachWithTwoPools) {
  Open("braided-reach.fwd");
  EXPECT_EQ(ChannelState.IrregPointCount, 16);
  EXPECT_EQ(Shown(program_.Main.tbFlow), "35.4");
  EXPECT_EQ(Shown(program_.Main.tbTopW), "38.8");
  EXPECT_EQ(Shown(program_.Main.tbCritD), "401.265");
}

}  // namespace

// Sets up the problem record for the tests of the operations.
#pragma once

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "engine/ChannelState.h"
#include "engine/Constants.h"
#include "engine/EngineFault.h"
#include "engine/SolveChannel.h"

struct Point {
  double x, e;
  EngineValue n = {};
};

/// The reason of the fault that ends the operation.
template <typename Operation>
std::string FaultOf(Operation operation) {
  try {
    operation();
  } catch (const EngineFault& fault) {
    return fault.what();
  }
  return "no fault";
}

class EngineTest : public testing::Test {
 protected:
  EngineTest() { ChannelState = ChannelRecord{}; }
  ~EngineTest() override { ChannelState = ChannelRecord{}; }

  static void SetTrapezoid(double b, double zL, double zR, double n, double S) {
    ChannelState.ChannelType = ChannelTypes::Trapezoidal;
    ChannelState.BaseWidth = b;
    ChannelState.SideSlopeLeft = zL;
    ChannelState.SideSlopeRight = zR;
    ChannelState.ManningN = n;
    ChannelState.Slope = S;
  }

  static void SetPipe(double D, double n, double S) {
    ChannelState.ChannelType = ChannelTypes::Circular;
    ChannelState.Diameter = D;
    ChannelState.ManningN = n;
    ChannelState.Slope = S;
  }

  static void SetSection(const std::vector<Point>& points, double S) {
    ChannelState.ChannelType = ChannelTypes::Irregular;
    ChannelState.IrregEnginePoints = Table(points);
    ChannelState.IrregPointCount = static_cast<int>(points.size());
    ChannelState.Slope = S;
  }

  static PointTable Table(const std::vector<Point>& points) {
    PointTable table;
    for (size_t i = 0; i < points.size(); ++i) {
      table[i + 1][1] = points[i].x;
      table[i + 1][2] = points[i].e;
      table[i + 1][3] = points[i].n;
    }
    return table;
  }

  static void SolveFlow(const EngineValue& depth) {
    ChannelState.SolveForFlow = true;
    ChannelState.Depth = depth;
    EXPECT_TRUE(SolveChannel());
  }

  static void SolveDepth(const EngineValue& flow) {
    ChannelState.SolveForFlow = false;
    ChannelState.Flow = flow;
    EXPECT_TRUE(SolveChannel());
  }

  static std::vector<EngineValue> Results() {
    const ChannelRecord& s = ChannelState;
    return {s.Area,     s.WettedPerimeter, s.HydraulicRadius, s.Velocity,     s.VelocityHead,
            s.TopWidth, s.Froude,          s.CriticalDepth,   s.CriticalSlope};
  }

  static void ExpectOverflow(const EngineValue& solved) {
    EXPECT_EQ(solved, "Overflow");
    EXPECT_EQ(Results(), std::vector<EngineValue>(9));
  }
};

/// Numbers by chance, the same ones in every run.
class Uniform {
 public:
  explicit Uniform(unsigned seed) : random_(seed) {}
  double operator()(double low, double high) { return std::uniform_real_distribution(low, high)(random_); }

 private:
  std::mt19937_64 random_;
};

// Root of a rising function in extended precision: the second method beside the engine's own search.
template <typename Function>
double Root(long double lo, long double hi, Function function) {
  for (int i = 0; i < 200; ++i) {
    const long double middle = (lo + hi) / 2;
    (function(middle) < 0 ? lo : hi) = middle;
  }
  return static_cast<double>(lo);
}

// The bare arithmetic; see BareLoops.h. A channel below has its geometry and Flow at a depth; the templates
// add the search and the results.
#include "BareLoops.h"

#include <algorithm>
#include <cmath>

namespace BareLoops {
namespace {

constexpr double Pi = 3.141592654;
const double rootG = std::sqrt(32.17405);

// The empty statements keep the two arms jumps: blended into selects, each midpoint would wait for the one
// before, and the loop would be no fair floor.
template <typename Function>
double Bisect(double lo, double hi, double target, Function function) {
  double y = 0;
  while (std::abs(hi - lo) > 1e-6) {
    y = (lo + hi) / 2;
    if (function(y) < target) {
      asm volatile("");
      lo = y;
    } else {
      asm volatile("");
      hi = y;
    }
  }
  return y;
}

double Manning(double A, double P, double n, double rootS) {
  return rootS * (std::pow(A / P, 2.0 / 3.0) * ((A * 1.485919) / n));
}

struct Trap {
  explicit Trap(const TrapInputs& in)
      : b(in.b),
        n(in.n),
        rootS(std::sqrt(in.S)),
        z(in.zL + in.zR),
        right(std::sqrt(in.zR * in.zR + 1)),
        left(std::sqrt(in.zL * in.zL + 1)) {}
  double A(double y) const { return z * (0.5 * (y * y)) + b * y; }
  double P(double y) const { return (b + y * right) + y * left; }
  double T(double y) const { return z * y + b; }
  double Flow(double y) const { return Manning(A(y), P(y), n, rootS); }
  double Factor(double y) const { return A(y) * std::sqrt(A(y) / T(y)); }
  double b, n, rootS, z, right, left;
  double low = 0, top = 999, criticalTop = 999;
};

struct Circ {
  explicit Circ(const CircInputs& in)
      : D(in.D),
        n(in.n),
        rootS(std::sqrt(in.S)),
        eighth(in.D * in.D / 8),
        top(0.938 * in.D),
        criticalTop(in.D) {}
  double Theta(double y) const {
    const double x = 1 - 2 * y / D;
    return 2 * (std::atan(-x / std::sqrt(-x * x + 1)) + Pi / 2);
  }
  double Area(double theta) const { return (theta - std::sin(theta)) * eighth; }
  double A(double y) const { return Area(Theta(y)); }
  double P(double y) const { return D * Theta(y) / 2; }
  double T(double y) const { return 2 * std::sqrt((D - y) * y); }
  double Flow(double y) const {
    const double theta = Theta(y);
    return Manning(Area(theta), D * theta / 2, n, rootS);
  }
  double Factor(double y) const {
    const double area = A(y);
    return area * std::sqrt(area / T(y));
  }
  double D, n, rootS, eighth;
  double low = 0, top, criticalTop;
};

struct Irreg {
  explicit Irreg(const IrregInputs& in)
      : x(in.x.data()), e(in.e.data()), starts(in.starts), rootS(std::sqrt(in.S)), last(in.x.size() - 1) {
    for (size_t i = 0; i < last; ++i) {
      const double rise = e[i + 1] - e[i];
      dx[i] = x[i + 1] - x[i];
      length[i] = std::sqrt(dx[i] * dx[i] + rise * rise);
    }
    for (size_t s = 0; s < in.n.size(); ++s) kOverN[s] = 1.485919 / in.n[s];
    low = *std::min_element(in.e.begin(), in.e.end());
    top = criticalTop = low + 999;
  }
  // Area with perimeter or width (or neither, or both) of the segments from..to-1.
  template <bool withP, bool withT>
  std::array<double, 3> Sum(size_t from, size_t to, double W) const {
    double A = 0, P = 0, T = 0;
    for (size_t i = from; i < to; ++i) {
      if (e[i] < W && e[i + 1] < W) {
        A += dx[i] * ((W - e[i]) + (W - e[i + 1])) / 2;
        if (withP) P += length[i];
        if (withT) T += dx[i];
      } else if (e[i + 1] < W) {
        const double width = x[i + 1] - (x[i] + dx[i] * (e[i] - W) / (e[i] - e[i + 1]));
        const double depth = W - e[i + 1];
        A += width * depth / 2;
        if (withP) P += std::sqrt(width * width + depth * depth);
        if (withT) T += width;
      } else if (e[i] < W) {
        const double width = x[i] + dx[i] * (e[i] - W) / (e[i] - e[i + 1]) - x[i];
        const double depth = W - e[i];
        A += width * depth / 2;
        if (withP) P += std::sqrt(width * width + depth * depth);
        if (withT) T += width;
      }
    }
    return {A, P, T};
  }
  double A(double W) const { return Sum<false, false>(0, last, W)[0]; }
  double P(double W) const { return Sum<true, false>(0, last, W)[1]; }
  double T(double W) const { return Sum<false, true>(0, last, W)[2]; }
  double Flow(double W) const {
    double Q = 0;
    for (size_t s = 0; s < starts.size(); ++s) {
      const size_t to = s + 1 < starts.size() ? starts[s + 1] : last;
      const auto [area, perimeter, width] = Sum<true, false>(starts[s], to, W);
      if (perimeter != 0) Q += rootS * (kOverN[s] * area * std::pow(area / perimeter, 2.0 / 3.0));
    }
    return Q;
  }
  double Factor(double W) const {
    const auto [area, perimeter, width] = Sum<false, true>(0, last, W);
    return area * std::sqrt(area / width);
  }
  const double* x;
  const double* e;
  const std::vector<size_t>& starts;
  double rootS;
  size_t last;
  double low = 0, top = 0, criticalTop = 0;
  std::array<double, 101> dx{}, length{}, kOverN{};
};

template <typename Channel>
Results At(const Channel& channel, double y, double Q) {
  const double A = channel.A(y);
  const double P = channel.P(y);
  const double T = channel.T(y);
  const double V = Q / A;
  const double yc = Bisect(channel.low, channel.criticalTop, Q / rootG,
                           [&](double depth) { return channel.Factor(depth); });
  return {y, Q, A, P, A / P, V, V * V / 64.3481, T, V / std::sqrt(A * 32.17405 / T), yc, 0};
}

template <typename Channel>
Results Flow(const Channel& channel, double y) {
  return At(channel, y, channel.Flow(y));
}

template <typename Channel>
Results Depth(const Channel& channel, double Q) {
  return At(channel, Bisect(channel.low, channel.top, Q, [&](double y) { return channel.Flow(y); }), Q);
}

// The critical slope, for the channels of one n.
template <typename Channel>
Results WithCriticalSlope(const Channel& channel, Results results) {
  const double A = channel.A(results[9]);
  const double R = A / channel.P(results[9]);
  results[10] = std::pow(std::pow(R, 2.0 / 3.0) * (1.485919 * A / channel.n / results[1]), -2);
  return results;
}

}  // namespace

Results TrapFlow(const TrapInputs& in, double y) {
  const Trap channel(in);
  return WithCriticalSlope(channel, Flow(channel, y));
}
Results TrapDepth(const TrapInputs& in, double Q) {
  const Trap channel(in);
  return WithCriticalSlope(channel, Depth(channel, Q));
}
Results CircFlow(const CircInputs& in, double y) {
  const Circ channel(in);
  return WithCriticalSlope(channel, Flow(channel, y));
}
Results CircDepth(const CircInputs& in, double Q) {
  const Circ channel(in);
  return WithCriticalSlope(channel, Depth(channel, Q));
}
Results IrregFlow(const IrregInputs& in, double W) {
  return Flow(Irreg(in), W);
}
Results IrregDepth(const IrregInputs& in, double Q) {
  return Depth(Irreg(in), Q);
}

}  // namespace BareLoops

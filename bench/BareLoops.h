// The arithmetic of the engine's operations and nothing else: plain doubles in, plain doubles out, no checks,
// no record, all that does not depend on the depth worked out once. What the operations are measured against.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace BareLoops {

// Depth, Flow, A, P, R, V, V^2/2g, T, Froude number, critical depth, critical slope.
using Results = std::array<double, 11>;

struct TrapInputs {
  double b, zL, zR, n, S;
};
struct CircInputs {
  double D, n, S;
};
struct IrregInputs {
  std::vector<double> x, e;         // one station and one elevation a point
  std::vector<std::size_t> starts;  // first point of each stretch of one n
  std::vector<double> n;            // one a stretch
  double S;
};

Results TrapFlow(const TrapInputs& in, double y);
Results TrapDepth(const TrapInputs& in, double Q);
Results CircFlow(const CircInputs& in, double y);
Results CircDepth(const CircInputs& in, double Q);
Results IrregFlow(const IrregInputs& in, double W);
Results IrregDepth(const IrregInputs& in, double Q);

}  // namespace BareLoops

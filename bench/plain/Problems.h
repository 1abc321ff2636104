// Problems by chance, ordinary and extreme ones, to compare the engine with the plain loops.
#pragma once

#include <cstdint>
#include <random>
#include <string>

#include "engine/ChannelState.h"

enum class ProblemKind { Trapezoid, Pipe, Section };

// The same problems in the same order for the same seed.
class ProblemSource {
 public:
  ProblemSource(ProblemKind kind, std::uint64_t seed) : kind_(kind), random_(seed) {}

  // Sets the problem record up for one more problem. Most numbers are ordinary, some are zero, negative, huge
  // or tiny; some flows make a midpoint of a search an exact answer. A section serves several problems.
  void Next();

 private:
  bool Chance(double p) { return Between(0, 1) < p; }
  double Between(double low, double high) { return std::uniform_real_distribution(low, high)(random_); }
  double Scaled(double low, double high);
  double Any(double low, double high);
  void NextSection();
  void ChangeSection();
  void AimAtAMidpoint();

  ProblemKind kind_;
  std::mt19937_64 random_;
};

// The problem in the record solved by the engine and by the plain loops: which result or fault differs, with
// both; empty when every bit agrees.
std::string Difference();

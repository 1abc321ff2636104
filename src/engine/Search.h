// The answer of the bisection, bit for bit, with two of its thirty questions asked.
//
// Each midpoint y asks "is f(y) below the target?" and pays for the whole formula f. Where f rises, the
// interval from lo to hi that the last midpoint halves decides all others: f(lo) below the target and f(hi)
// not, found at these two doubles themselves, put every lower midpoint below and every higher one not. A
// guess of the root leads to lo and hi; it need not be right, for the two questions are asked, and a "no"
// searches plainly. At lo = 0 and at the top of the search, which are no midpoints, nothing is asked.
//
// What is computed must rise too, not only f. The midpoints lie 1e-6 ft apart or more, so it does where the
// relative rise of f over 1e-6 ft exceeds twice the relative error of its computation: each channel type
// proves that where it searches. Take u = 2^-53. From its A, P, T Manning's flow is computed within 9u +
// 4e-15 (pow within 1 ulp; its exponent 2/3 rounded by 4e-17, which counts |ln R| < 100 times), the section
// factor within 4u.
//
// A question not asked is a fault not met. So only numbers that cannot fault are searched this way: those
// that are not 0 lie between 1e-20 and 1e20, and depths between 4e-7 and 999 ft, so that no intermediate
// comes near the limits of a double.
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

#include "engine/Bisection.h"
#include "engine/Constants.h"

namespace Search {

// What the guesses have cost so far: steps towards their roots, and plain searches after wrong ones. A poor
// guess changes no answer, so that only these counts show it.
inline long StepsTaken = 0;
inline long WrongGuesses = 0;

// Numbers that may be searched this way.
template <typename... Numbers>
bool Ordinary(Numbers... x) {
  return ((x >= 1e-20 && x <= 1e20) && ...);
}

template <typename... Numbers>
bool ZeroOrOrdinary(Numbers... x) {
  return ((x == 0 || Ordinary(x)) && ...);
}

// x^N for a whole N.
template <int N>
double Power(double x) {
  if constexpr (N == 1)
    return x;
  else
    return x * Power<N - 1>(x);
}

// x^exponent within 7 %, x > 0: the bits of a double are its logarithm, with the mantissa for the fraction.
inline double RoughPower(double x, double exponent) {
  constexpr auto One = std::bit_cast<std::int64_t>(1.0);
  const auto logarithm = static_cast<double>(std::bit_cast<std::int64_t>(x) - One);
  return std::bit_cast<double>(One + static_cast<std::int64_t>(exponent * logarithm));
}

// Two sides of an equation at x that grow as powers of x; exponent is the difference of the two powers,
// d ln(left / right) / d ln x.
struct Sides {
  double left, right, exponent;
};

// A guess of the x at which the sides meet, from a start that may be far off. Each step takes left / right
// for a power of x and its root by (1 + d) / (1 - d); where they settle, nine digits are right.
template <typename SidesAt>
double GuessRoot(double x, SidesAt sidesAt) {
  for (int step = 0; step < 8; ++step) {
    const auto [left, right, exponent] = sidesAt(x);
    const double d = (right - left) / (exponent * (right + left));
    x *= (1 + d) / (1 - d);
    ++StepsTaken;
    if (std::abs(d) < 5e-6) break;
  }
  return x;
}

// The last midpoint between lo and hi (ft) for an f that rises as described above, by a guess of its root.
template <typename Below>
double Jump(double lo, double hi, double guess, Below below) {
  const Halving last = Bisect(lo, hi, [&](double y) { return y < guess; });
  const bool sameWay = (last.lo == lo || below(last.lo)) && (last.hi == hi || !below(last.hi));
  WrongGuesses += sameWay ? 0 : 1;
  return sameWay ? last.y : Bisect(lo, hi, below).y;
}

// The same from 0 to the top of an open channel's search, without halving: 999 has ten bits, so that every
// midpoint is 999 k / 2^j to the last bit, and the last one halves one of 2^29 intervals.
template <typename Below>
double JumpInOpenChannel(double guess, Below below) {
  constexpr double Top = Constants::SearchDepth;
  constexpr int Intervals = 1 << 29;
  static_assert(Top == 999 && Top / Intervals > Constants::SearchTolerance &&
                Top / Intervals / 2 <= Constants::SearchTolerance);
  const int k = guess > 0 ? static_cast<int>(std::min(guess * (Intervals / Top), Intervals - 1.0)) : 0;
  const double lo = Top * k / Intervals;
  const double hi = Top * (k + 1) / Intervals;
  const bool sameWay = (k == 0 || below(lo)) && (k + 1 == Intervals || !below(hi));
  WrongGuesses += sameWay ? 0 : 1;
  return sameWay ? (lo + hi) / 2 : Bisect(0, Top, below).y;
}

}  // namespace Search

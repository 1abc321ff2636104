// Arithmetic that refuses to go on with infinity or NaN. A quotient by an infinite number is 0, which looks
// like an answer, so every step is checked and not only the end of a computation.
#pragma once

#include <cmath>
#include <stdexcept>

// A computation that has no result. what() says why, in words for the status line.
class EngineFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Apart from the callers, so that a check costs them one compare and an untaken jump.
[[noreturn]] void ThrowFault(const char* reason);

// True when none of the numbers is infinite or NaN: x - x is 0 for every other number.
template <typename... Numbers>
bool AllFinite(Numbers... x) {
  return ((x - x) + ...) == 0.0;  // NOLINT(misc-redundant-expression)
}

// x itself; a number that is infinite or NaN faults.
inline double Finite(double x) {
  if (!AllFinite(x)) [[unlikely]]
    ThrowFault("a number is too large");
  return x;
}

// Quotient of two finite numbers; faults with the reason given when the denominator is zero.
inline double Divide(double numerator, double denominator, const char* denominatorIsZero) {
  if (denominator == 0) [[unlikely]]
    ThrowFault(denominatorIsZero);
  return Finite(numerator / denominator);
}

// Root of a finite number; faults with the reason given when it is negative.
inline double SquareRoot(double x, const char* isNegative) {
  if (x < 0) [[unlikely]]
    ThrowFault(isNegative);
  return Finite(std::sqrt(x));
}

// Power of a finite base of zero or more; faults when the base is negative, or zero with an exponent below 0.
inline double Power(double base, double exponent, const char* outOfDomain) {
  if (base < 0 || (base == 0 && exponent < 0)) [[unlikely]]
    ThrowFault(outOfDomain);
  return Finite(std::pow(base, exponent));
}

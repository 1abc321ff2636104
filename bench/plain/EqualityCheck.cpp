// Compares the engine with the plain loops, bit for bit and fault for fault, on problems by chance.
//
// Usage: engine_equality [COUNT [SEED]]   so many problems of each kind, a million by default
#include <cstdio>
#include <cstdlib>

#include "plain/Problems.h"

int main(int argc, char** argv) {
  const long count = argc > 1 ? std::atol(argv[1]) : 1'000'000;
  const auto seed = static_cast<std::uint64_t>(argc > 2 ? std::atol(argv[2]) : 1);
  for (const ProblemKind kind : {ProblemKind::Trapezoid, ProblemKind::Pipe, ProblemKind::Section}) {
    ProblemSource source(kind, seed);
    long differences = 0;
    for (long i = 0; i < count; ++i) {
      source.Next();
      const std::string difference = Difference();
      if (difference.empty()) continue;
      if (++differences <= 5) std::printf("%s\n", difference.c_str());
    }
    std::printf("kind %d: %ld problems, %ld differ\n", static_cast<int>(kind), count, differences);
    if (differences != 0) return 1;
  }
}

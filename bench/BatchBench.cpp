// Where the time of a batch goes: 100 000 problems of a CSV file, half of them open channels and half pipes.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <random>
#include <string>

#include "app/NoteSpelling.h"
#include "app/main/Problem.h"
#include "batch/Problems.h"
#include "batch/Solve.h"
#include "engine/SolveChannel.h"
#include "files/WholeFile.h"

namespace {

constexpr int Problems = 100'000;

std::string Sheet() {
  std::mt19937 chance(1);
  const auto number = [&](double least, double most) {
    return std::to_string(std::uniform_real_distribution(least, most)(chance)) + ",";
  };
  std::string sheet =
      "ChannelType,SolveForFlow,Flow,Depth,Slope,ManningN,Diameter,BaseWidth,SideSlopeLeft,SideSlopeRight\n";
  for (int i = 0; i < Problems; ++i) {
    sheet += i % 2 == 0 ? "Trapezoidal Channel," : "Circular Channel,";
    sheet += i % 4 < 2 ? "False," : "True,";
    sheet += number(1, 40) + number(0.5, 2.5) + number(0.001, 0.02) + number(0.011, 0.03) + number(36, 90) +
             number(2, 20) + number(1, 3) + "2\n";
  }
  return sheet;
}

class Stopwatch {
 public:
  template <class Act>
  void Time(Act act) {
    const auto start = std::chrono::steady_clock::now();
    act();
    time_ += std::chrono::steady_clock::now() - start;
  }
  double Seconds() const { return std::chrono::duration<double>(time_).count(); }

 private:
  std::chrono::steady_clock::duration time_{};
};

}  // namespace

int main() {
  const std::string path = (std::filesystem::temp_directory_path() / "flumewise-batch-bench.csv").string();
  WholeFile::Write(path, Sheet());
  Stopwatch reading, numbers, solving, engine, notes, writing;
  std::optional<Batch::Problems> problems;
  reading.Time([&] { problems.emplace(std::vector{path}); });
  std::size_t bytes = 0;
  for (std::size_t i = 0; i < problems->Count(); ++i) {
    Batch::Answer answer;
    reading.Time([&] { answer = problems->At(i); });
    solving.Time([&] { Batch::Solve(answer); });
    // Once more, alone: how much of that was reading numbers, the engine, and the notes.
    const auto typed = [&](const Field& field) -> const std::string& {
      return answer.Typed.Inputs.at(static_cast<std::size_t>(field.FileItem));
    };
    numbers.Time([&] { Problem::TakeInputs(typed); });
    engine.Time([] { SolveChannel(); });
    if (answer.Solved) notes.Time([] { NotesOn(Examine(ChannelState), NoteSpelling()); });
    std::string row;
    writing.Time([&] { Batch::AppendRow(row, answer, false); });
    bytes += row.size();
  }
  std::filesystem::remove(path);
  const double whole = reading.Seconds() + solving.Seconds() + writing.Seconds();
  const double read = reading.Seconds() + numbers.Seconds();
  const double own = read + engine.Seconds() + notes.Seconds() + writing.Seconds();
  std::printf("%d problems, %zu bytes: %.2f s\n", Problems, bytes, whole);
  std::printf("reading %.0f %%, engine %.0f %%, notes %.0f %%, writing %.0f %%, all else %.0f %%\n",
              100 * read / whole, 100 * engine.Seconds() / whole, 100 * notes.Seconds() / whole,
              100 * writing.Seconds() / whole, 100 * (1 - own / whole));
}

// See Batch.h.
#include "batch/Batch.h"

#include <algorithm>
#include <future>
#include <stdexcept>

#include "app/Declarations.h"
#include "app/Version.h"
#include "batch/Options.h"
#include "batch/Problems.h"
#include "batch/Solve.h"
#include "files/ChildProgram.h"

namespace Batch {

namespace {

constexpr std::size_t BytesPerWrite = 1 << 16;

/// The first problem behind so many of the parts.
std::size_t EndOf(std::size_t parts, std::size_t count, std::size_t problems) {
  return problems / count * parts + problems % count * parts / count;
}

int RunPart(const Options& options, const Problems& problems, const Sink& write) {
  const RatingRequest* const range = options.Range ? &*options.Range : nullptr;
  const Part& part = options.Of;
  int status = AllSolved;
  std::string sheet = part.Index == 1 ? HeadRow() : "";
  const std::size_t end = EndOf(part.Index, part.Count, problems.Count());
  for (std::size_t i = EndOf(part.Index - 1, part.Count, problems.Count()); i < end; ++i) {
    Answer answer = problems.At(i);
    if (answer.Known) Solve(answer);
    if (options.Rating && answer.Solved) {
      AppendRating(sheet, answer, range, options.RecordUnits);
    } else {
      AppendRow(sheet, answer, options.RecordUnits);
    }
    if (!answer.Solved) status = SomeBlank;
    if (sheet.size() >= BytesPerWrite) {
      write(sheet);
      sheet.clear();
    }
  }
  write(sheet);
  return status;
}

/// The record is one for each process, so each part has a process of its own. The last word counts: what is
/// appended overrides the options before.
int RunInParts(const std::string& program, const std::vector<std::string>& arguments, const Options& options,
               const Sink& write) {
  std::vector<ChildProgram> children;
  for (std::size_t i = 1; i <= options.Jobs; ++i) {
    std::vector<std::string> command = {program};
    command.insert(command.end(), arguments.begin(), arguments.end());
    const std::size_t index = (options.Of.Index - 1) * options.Jobs + i;
    const std::size_t count = options.Of.Count * options.Jobs;
    command.insert(command.end(),
                   {"--jobs=1", "--part=" + std::to_string(index) + "/" + std::to_string(count)});
    children.emplace_back(command);
  }
  // Read at the same time: a part whose pipe is full would wait for those before it.
  std::vector<std::future<ChildProgram::Ending>> endings;
  endings.reserve(children.size());
  for (ChildProgram& child : children) {
    endings.push_back(std::async(std::launch::async, [&child] { return child.Wait(); }));
  }
  int status = AllSolved;
  for (auto& each : endings) {
    const ChildProgram::Ending ending = each.get();
    if (ending.Status < 0) throw std::runtime_error("a process was ended before its part was done");
    write(ending.Output);
    status = std::max(status, ending.Status);
  }
  return status;
}

}  // namespace

int Run(const std::string& program, const std::vector<std::string>& arguments, const Sink& write) {
  const Options options = ReadOptions(arguments);
  if (options.Help) {
    write(HelpText);
    return AllSolved;
  }
  if (options.Version) {
    write(std::string("flumewise-batch ") + VersionName + "\n");
    return AllSolved;
  }
  if (options.Range) VariedInput(options.Range->Input);
  const Problems problems(options.Files);
  return options.Jobs == 1 ? RunPart(options, problems, write)
                           : RunInParts(program, arguments, options, write);
}

}  // namespace Batch

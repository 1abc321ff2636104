// See Options.h.
#include "batch/Options.h"

#include <charconv>
#include <span>
#include <stdexcept>
#include <string_view>

#include "engine/NumberText.h"

namespace Batch {

const char* const HelpText =
    "Usage: flumewise-batch [OPTION]... FILE...\n"
    "Solves the problems of project files (.fwd) and of CSV files, and writes one CSV row for each.\n"
    "\n"
    "  --record-units    write feet and seconds, not the unit system of each problem\n"
    "  --rating[=FIELD,FIRST,LAST,STEP]\n"
    "                    write a rating of each problem: a row for each value of an input;\n"
    "                    without a range the one that the rating table proposes\n"
    "  -j N, --jobs=N    work with N processes\n"
    "  --part=I/N        work on the I-th of N equal parts of the problems\n"
    "  --help, --version\n"
    "\n"
    "A CSV file has a head with the names of the record's inputs, such as ChannelType, Flow,\n"
    "ManningN; its numbers are in the unit system that UnitsEorM names: 0 English, 1 metric.\n"
    "\n"
    "Exit status: 0 all problems are solved, 1 some are not, 2 nothing could be done.\n";

namespace {

[[noreturn]] void Refuse(const std::string& argument, const char* must) {
  throw std::runtime_error(argument + ": " + must);
}

std::optional<std::size_t> Count(std::string_view text) {
  constexpr std::size_t Most = 1'000'000;
  std::size_t count = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), count);
  const bool whole = read.ec == std::errc{} && read.ptr == text.data() + text.size();
  return whole && count >= 1 && count <= Most ? std::optional(count) : std::nullopt;
}

Part PartOf(const std::string& text) {
  const std::size_t slash = std::min(text.find('/'), text.size());
  const auto index = Count(std::string_view(text).substr(0, slash));
  const auto count = Count(std::string_view(text).substr(std::min(slash + 1, text.size())));
  if (!index || !count || *index > *count) Refuse("--part=" + text, "a part is I/N with I from 1 to N");
  return {*index, *count};
}

RatingRequest RangeOf(const std::string& text) {
  std::vector<std::string> words(1);
  for (const char c : text) {
    if (c == ',') {
      words.emplace_back();
    } else {
      words.back() += c;
    }
  }
  bool numbers = words.size() == 4;
  for (const std::string& word : std::span(words).subspan(1)) numbers = numbers && IsNumeric(word);
  if (!numbers) Refuse("--rating=" + text, "a range is FIELD,FIRST,LAST,STEP");
  RatingRequest range{words[0], LeadingNumber(words[1]), LeadingNumber(words[2]), LeadingNumber(words[3])};
  if (!(range.Last > range.First && range.Step > 0))
    Refuse("--rating=" + text, "the last value must be greater than the first, and the step than 0");
  return range;
}

std::size_t JobsOf(const std::string& text) {
  const auto jobs = Count(text);
  if (!jobs) Refuse("-j " + text, "the number of processes must be 1 or more");
  return *jobs;
}

}  // namespace

Options ReadOptions(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const auto valueBehind = [&](std::string_view name) -> std::optional<std::string> {
      if (!argument.starts_with(name)) return std::nullopt;
      return argument.substr(name.size());
    };
    if (argument == "--help") {
      options.Help = true;
    } else if (argument == "--version") {
      options.Version = true;
    } else if (argument == "--record-units") {
      options.RecordUnits = true;
    } else if (argument == "--rating") {
      options.Rating = true;
    } else if (const auto range = valueBehind("--rating=")) {
      options.Rating = true;
      options.Range = RangeOf(*range);
    } else if (const auto part = valueBehind("--part=")) {
      options.Of = PartOf(*part);
    } else if (const auto jobs = valueBehind("--jobs=")) {
      options.Jobs = JobsOf(*jobs);
    } else if (argument == "-j") {
      options.Jobs = JobsOf(++i < arguments.size() ? arguments[i] : "");
    } else if (const auto attached = valueBehind("-j")) {
      options.Jobs = JobsOf(*attached);
    } else if (argument.starts_with('-')) {
      Refuse(argument, "there is no such option");
    } else {
      options.Files.push_back(argument);
    }
  }
  if (options.Files.empty() && !options.Help && !options.Version)
    throw std::runtime_error("no file is named");
  return options;
}

}  // namespace Batch

// Transects of SWMM input files; see ModelFiles.h.
#include <algorithm>
#include <array>

#include "section/ModelFiles.h"
#include "section/Spelling.h"

namespace Survey {

namespace {

using Words = std::vector<std::string_view>;

/// The words of a line up to a comment.
Words WordsOfLine(std::string_view line) {
  line = line.substr(0, line.find(';'));
  Words words;
  while (!(line = Trimmed(line)).empty()) {
    const std::size_t end = std::min(line.find_first_of(" \t"), line.size());
    words.push_back(line.substr(0, end));
    line.remove_prefix(end);
  }
  return words;
}

bool SameWord(std::string_view a, std::string_view b) {
  const auto upper = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; };
  return std::ranges::equal(a, b, {}, upper, upper);
}

/// The numbers of a line by their place, of which at least `least` must be there.
class Numbers {
 public:
  Numbers(const Words& words, std::size_t line, std::size_t least) : words_(words), line_(line) {
    if (words.size() < least) Refuse(line, words.size() + 1, "The line is cut off.");
  }
  Number operator[](std::size_t place) const {
    const auto value = ValueOf(words_[place], ModelSpelling);
    if (!value) Refuse(line_, place + 1, InQuotes(words_[place]) + " is not a number.");
    return {*value, words_[place]};
  }
  double ValueOr(std::size_t place, double otherwise) const {
    return place < words_.size() ? (*this)[place].Value : otherwise;
  }

 private:
  const Words& words_;
  std::size_t line_;
};

/// Reads the transects one line after the other.
class Transects {
 public:
  void Read(const Words& words, std::size_t line) {
    if (SameWord(words[0], "NC")) {
      FinishSection();  // which still has the n in force so far
      ReadRoughness(Numbers(words, line, 4), line);
    } else if (SameWord(words[0], "X1")) {
      Begin(words, line);
    } else if (SameWord(words[0], "GR")) {
      ReadGround(words, line);
    } else {
      Refuse(line, 1, InQuotes(words[0]) + " is none of NC, X1 and GR.");
    }
  }

  std::vector<Section> Finish() {
    FinishSection();
    return std::move(sections_);
  }

 private:
  enum Part { Left, Right, Channel };

  void ReadRoughness(const Numbers& numbers, std::size_t line) {
    for (const Part part : {Left, Right, Channel}) {
      const Number n = numbers[static_cast<std::size_t>(part) + 1];
      if (n.Value != 0) n_[part] = {0, n, line};
    }
  }

  void Begin(const Words& words, std::size_t line) {
    FinishSection();
    const Numbers numbers(words, line, 5);
    open_ = true;
    head_ = line;
    count_ = numbers[2].Value;
    Section& section = sections_.emplace_back();
    section.Name = words[1];
    section.Spelling = ModelSpelling;
    section.Banks = {numbers[3].Value, numbers[4].Value};
    if (const double factor = numbers.ValueOr(9, 0); factor != 0) section.WidthFactor = factor;
    section.Offset = numbers.ValueOr(10, 0);
    if (const double length = numbers.ValueOr(8, 0); length != 0 && length != 1) {
      section.Notes.push_back("The length factor " + PlainNumberInLocale(length) +
                              " was left out: one section has no length.");
    }
  }

  void ReadGround(const Words& words, std::size_t line) {
    if (!open_) Refuse(line, 1, "There is no X1 line before the points.");
    if (words.size() % 2 == 0)
      Refuse(line, words.size() + 1, "The line is cut off: an elevation has no station.");
    const Numbers numbers(words, line, 3);
    for (std::size_t i = 1; i < words.size(); i += 2)
      sections_.back().Points.push_back({numbers[i + 1], numbers[i], std::nullopt, line});
  }

  /// Checks the section that ends here and puts the n in the order of its stations.
  void FinishSection() {
    if (!open_) return;
    open_ = false;
    Section& section = sections_.back();
    if (static_cast<double>(section.Points.size()) != count_) {
      Refuse(head_, 3,
             "The transect " + section.Name + " has " + std::to_string(section.Points.size()) +
                 " points, not the " + PlainNumberInLocale(count_) + " announced here.");
    }
    if (section.Points.empty()) return;
    const std::array starts = {section.Points.front().X.Value, section.Banks[1], section.Banks[0]};
    for (const Part part : {Left, Channel, Right}) {
      if (n_[part]) section.Breaks.push_back({starts[part], n_[part]->N, n_[part]->Line});
    }
    // Without banks, or with banks at the ends, the channel takes in the whole section.
    if (section.Banks[0] >= section.Banks[1]) section.Breaks = Whole(section);
    std::erase_if(section.Breaks,
                  [&](const Break& each) { return each.Station >= section.Points.back().X.Value; });
    while (section.Breaks.size() > 1 && section.Breaks[1].Station <= starts[Left])
      section.Breaks.erase(section.Breaks.begin());
  }

  std::vector<Break> Whole(const Section& section) const {
    if (!n_[Channel]) return {};
    return {{section.Points.front().X.Value, n_[Channel]->N, n_[Channel]->Line}};
  }

  std::vector<Section> sections_;
  std::optional<Break> n_[3];  // in force; the stations are those of each section
  bool open_ = false;          // the last section may get more points
  std::size_t head_ = 0;
  double count_ = 0;
};

/// The unit of length that a name of a flow unit goes with.
std::optional<LengthUnit> UnitOfFlow(std::string_view name) {
  for (const char* const each : {"CFS", "GPM", "MGD"}) {
    if (SameWord(name, each)) return Feet();
  }
  for (const char* const each : {"CMS", "LPS", "MLD"}) {
    if (SameWord(name, each)) return Metres();
  }
  return std::nullopt;
}

}  // namespace

std::vector<Section> SwmmSections(std::string_view text) {
  Transects transects;
  std::optional<LengthUnit> unit;
  std::string_view part;
  for (std::size_t line = 1; !text.empty(); ++line) {
    const std::string_view each = TakeLine(text);
    if (each.starts_with('[')) part = Trimmed(each);
    const bool transect = SameWord(part, "[TRANSECTS]");
    if (each.starts_with('[') || (!transect && !SameWord(part, "[OPTIONS]"))) continue;
    const Words words = WordsOfLine(each);
    if (words.empty()) continue;
    if (transect) {
      transects.Read(words, line);
    } else if (SameWord(words[0], "FLOW_UNITS") && words.size() > 1) {
      unit = UnitOfFlow(words[1]);
      if (!unit) Refuse(line, 2, InQuotes(words[1]) + " is not a known unit of flow.");
    }
  }
  std::vector<Section> sections = transects.Finish();
  for (Section& section : sections) {
    section.XUnit = section.ZUnit = unit;
    section.AsksUnit = !unit;
  }
  return sections;
}

}  // namespace Survey

// The bytes of a project file, worked out by hand, and what is and is not read as one.
#include "app/project/ProjectFile.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <stdexcept>
#include <tuple>
#include <utility>

#include "../../../fuzz/ProjectRoundTrip.h"
#include "app/Version.h"
#include "app/project/ProjectItems.h"
#include "engine/ChannelState.h"
#include "engine/NumberText.h"
#include "files/TextEncoding.h"
#include "support/TestFolder.h"

namespace {

using ProjectFile::Project;

const NumberLocale Point{".", ","}, Comma{",", "."}, NoBreak{",", "\u202F"}, Apostrophe{".", "'"},
    Ungrouped{",", ""}, Blank{",", " "};

class ProjectFileTest : public testing::Test {
 protected:
  ~ProjectFileTest() override { SetNumberLocale({}); }
};

/// Places of inputs in a project.
enum Input : size_t { Flow, Depth, ManningN, Slope, SideSlopeLeft = 7 };

Project Sample() {
  return {{"100.5", "", ".03125", "0.015625", "abc", "5", "2", "1e1"},
          "Trapezoidal Channel",
          false,
          1,
          "12\" pipe,\r\nupper",
          4,
          2,
          {{"0", "10.5", ".5"}, {25.25, "8 m", ""}}};
}

/// The records of Sample without the checksum, line ends included.
std::string SampleRecords(const std::string& version) {
  return "\"Flumewise\"\r\n\"Flumewise\"\r\n\"" + version +
         "\"\r\n\"100.5\"\r\n\"\"\r\n\".03125\"\r\n\"0.015625\"\r\n\"abc\"\r\n\"5\"\r\n\"2\"\r\n\"1e1\"\r\n"
         "\"Trapezoidal Channel\"\r\n#FALSE#\r\n1\r\n\"12\"\" pipe,\r\nupper\"\r\n4\r\n2\r\n2\r\n"
         "\"0\",\"10.5\",\".5\"\r\n25.25,\"8 m\",\"\"\r\n";
}

/// With version 1.25, all exact in binary: 1.25 + 100.5 + .03125 + .015625 + 5 + 2 + 10 = 118.796875 of the
/// inputs,
/// + 1 (units) + 12 (name) + 4 + 2 + 2 (count) = 139.796875, + 10.5 + .5 + 25.25 + 8 of the points.
std::string SampleFile() {
  return SampleRecords("1.25") + "184.046875\r\n";
}

std::string Replaced(std::string text, const std::string& part, const std::string& with) {
  const size_t at = text.find(part);
  EXPECT_NE(at, std::string::npos) << part;
  return text.replace(at, part.size(), with);
}

std::string WithChecksum(const std::string& records) {
  return records + PlainNumber(ProjectItems::Checksum(ProjectItems::Split(records)));
}

bool Opens(const std::string& bytes) {
  try {
    ProjectFile::Parse(bytes);
    return true;
  } catch (const std::runtime_error&) {
    return false;
  }
}

TEST_F(ProjectFileTest, IsWrittenByteForByte) {
  const std::string version =
      std::to_string(VersionMajor) + "." + std::to_string(VersionMinor) + std::to_string(VersionRevision);
  double sum = Val(version);
  for (const double value : {100.5, .03125, 0.015625, 5., 2., 10., 1., 12., 4., 2., 2., 10.5, .5, 25.25, 8.})
    sum += value;
  EXPECT_EQ(ProjectFile::Format(Sample()), SampleRecords(version) + PlainNumber(sum) + "\r\n");
}

TEST_F(ProjectFileTest, IsReadAsWritten) {
  EXPECT_EQ(ProjectFile::Parse(SampleFile()), Sample());
}

TEST_F(ProjectFileTest, IsReadHoweverItIsLaidOut) {
  std::string unixLines = Replaced(SampleFile(), "pipe,\r\n", "pipe,@");
  std::erase(unixLines, '\r');
  const std::array sameProject = {
      "\xEF\xBB\xBF" + Replaced(SampleFile(), "Flumewise", "Flume, wise"),
      Replaced(unixLines, "@", "\r\n"),
      Replaced(SampleFile(), "\"5\"\r\n\"2\"\r\n", " \"5\"\t , \"2\" \r\n"),
      Replaced(SampleFile(), "\r\n25.25,", "\r\n\r\n25.25,\r\n"),
      SampleFile() + "\r\n",
      Replaced(SampleFile(), "\"\"\r\n184", "\"\",\"last surveyed\"\r\n1000,\r\n1184"),  // extra items
      Replaced(SampleFile(), "\"100.5\"", "100.5"),
  };
  for (const std::string& bytes : sameProject) EXPECT_EQ(ProjectFile::Parse(bytes), Sample()) << bytes;
}

TEST_F(ProjectFileTest, IsRefusedWhenBroken) {
  // The last of these is the next double.
  for (const char* const checksum : {"\"184.046875\"", "", "184.046875,0", "184.04687500000003"})
    EXPECT_FALSE(Opens(SampleRecords("1.25") + checksum + "\r\n")) << checksum;
  for (const char* const unclosed : {"\"8 m", "\"8 m\"x"})
    EXPECT_FALSE(Opens(Replaced(SampleFile(), "\"8 m\"", unclosed))) << unclosed;
  for (const char* bytes : {"", "\xEF\xBB\xBF", "0", "\"", "\r\n", ","}) EXPECT_FALSE(Opens(bytes));

  struct Case {
    const char* Part;
    std::vector<const char*> Broken;
  };
  const Case cases[] = {
      {"Trapezoidal", {"Hexagonal", "trapezoidal"}},
      {"#FALSE#", {"\"#FALSE#\"", "False", "0"}},
      {"#FALSE#\r\n1", {"#FALSE#\r\n2", "#FALSE#\r\n-1", "#FALSE#\r\n1.0", "#FALSE#\r\n\"1\""}},
      {"4\r\n2\r\n2", {"4.0\r\n2\r\n2", "4\r\n\"2\"\r\n2"}},
      {"4\r\n2\r\n2", {"4\r\n2\r\n\"2\"", "4\r\n2\r\n3", "4\r\n2\r\n-1", "4\r\n2\r\n99999999999"}},
      {",\"\"\r\n", {"\r\n"}}};
  EXPECT_TRUE(Opens(WithChecksum(SampleRecords("1.25"))));
  for (const auto& [part, allBroken] : cases) {
    for (const char* const broken : allBroken)
      EXPECT_FALSE(Opens(WithChecksum(Replaced(SampleRecords("1.25"), part, broken)))) << broken;
  }
}

TEST_F(ProjectFileTest, IsRefusedWhenCutOffAnywhere) {
  const std::string whole = SampleFile();
  for (size_t size = 0; size < whole.size() - 2; ++size) EXPECT_FALSE(Opens(whole.substr(0, size))) << size;
  EXPECT_TRUE(Opens(whole.substr(0, whole.size() - 2)));  // but for the last line end nothing is missing
}

TEST_F(ProjectFileTest, IsRefusedWhenAnyDigitHasChanged) {
  // Other characters of a text are no part of the checksum: they read as they stand.
  const std::string whole = SampleFile();
  for (size_t at = 0; at < whole.size(); ++at) {
    if (whole[at] < '0' || whole[at] > '9') continue;
    std::string changed = whole;
    changed[at] = whole[at] == '9' ? '8' : static_cast<char>(whole[at] + 1);
    EXPECT_FALSE(Opens(changed)) << at;
  }
}

TEST_F(ProjectFileTest, HoldsNoMoreThanItsLimits) {
  Project project = Sample();
  project.Points.assign(101, {1.5, "2", ""});
  EXPECT_EQ(ProjectFile::Parse(ProjectFile::Format(project)).Points.size(), 101u);
  project.Points.push_back({});
  EXPECT_FALSE(Opens(ProjectFile::Format(project)));

  std::string extra;  // Sample has 24 items and the checksum
  for (int i = 0; i < 575; ++i) extra += "\"x\"\r\n";
  EXPECT_TRUE(Opens(SampleRecords("1.25") + extra + "184.046875"));
  EXPECT_FALSE(Opens(SampleRecords("1.25") + extra + "\"x\",184.046875"));

  project = Sample();
  const size_t rest = ProjectFile::Format(project).size();
  project.ProjName.append((size_t{4} << 20) - rest, 'x');
  EXPECT_TRUE(Opens(ProjectFile::Format(project)));
  project.ProjName += 'x';
  EXPECT_FALSE(Opens(ProjectFile::Format(project)));
}

TEST_F(ProjectFileTest, ReadsOtherDigitsThanOneToFiveAsTheirDefault) {
  for (const auto& [digits, sigDigs, engDigs] : {std::tuple("1\r\n5\r\n2", 1, 5),
                                                 {"5\r\n1\r\n2", 5, 1},
                                                 {"0\r\n6\r\n2", 3, 3},
                                                 {"-99999999999\r\n184467440737095516160\r\n2", 3, 3}}) {
    const Project read =
        ProjectFile::Parse(WithChecksum(Replaced(SampleRecords("1.25"), "4\r\n2\r\n2", digits)));
    EXPECT_EQ(read.SigDigs, sigDigs);
    EXPECT_EQ(read.EngDigs, engDigs);
  }
}

TEST_F(ProjectFileTest, CountsWhatOverflowsAsNothing) {
  Project project = Sample();
  project.Inputs[Flow] = "1e999";
  project.Inputs[Depth] = project.Inputs[Slope] = "1.7e308";
  EXPECT_EQ(ProjectFile::Parse(ProjectFile::Format(project)), project);
  EXPECT_TRUE(ProjectFile::Format(project).ends_with("\r\n1.7e+308\r\n"));
}

TEST_F(ProjectFileTest, ReadsBytesThatAreNoUtf8AsWindows1252) {
  struct Case {
    const char *Bytes, *Text;
  };
  for (const auto& [bytes, text] : std::initializer_list<Case>{
           {"Stra\xDF"
            "e \x80\x9F",
            "Stra\u00DFe \u20AC\u0178"},
           {"\xA0\xBF\xC0\xFF", "\u00A0\u00BF\u00C0\u00FF"},
           {"\xC2\xA0\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xF0\x90\x80\x80\xF4\x8F\xBF\xBF",
            "\u00A0\u0800\uD7FF\uE000\U00010000\U0010FFFF"},
           {"\xC0\x80", "\u00C0\u20AC"},                      // a longer spelling than needed
           {"\xE0\x9F\x80", "\u00E0\u0178\u20AC"},            // likewise
           {"\xED\xA0\x80", "\u00ED\u00A0\u20AC"},            // a surrogate
           {"\xF4\x90\x80\x80", "\u00F4\u0090\u20AC\u20AC"},  // beyond the last character
           {"\xE2\x82", "\u00E2\u201A"},                      // cut off
           {"\xE2\x82z", "\u00E2\u201Az"},
       }) {
    EXPECT_EQ(DecodedText(bytes), text);
    EXPECT_EQ(ProjectFile::Parse(Replaced(SampleFile(), "upper", bytes)).ProjName,
              Replaced(Sample().ProjName, "upper", text));
  }
}

/// Saved under the locale, the text stands so in the file; opened under it, it reads `back`.
void ExpectSpelling(const NumberLocale& locale, const std::string& typed, const std::string& inFile,
                    const std::string& back) {
  SetNumberLocale(locale);
  Project project = Sample();
  project.Inputs[SideSlopeLeft] = typed;
  project.Points[1][2] = typed;
  project.ProjName = "1,5";
  const std::string bytes = ProjectFile::Format(project);
  const std::string quoted = "\"" + inFile + "\"\r\n";
  EXPECT_NE(bytes.find(quoted + "\"Trapezoidal"), std::string::npos) << bytes;
  EXPECT_NE(bytes.find("25.25,\"8 m\"," + quoted), std::string::npos) << bytes;
  project.Inputs[SideSlopeLeft] = back;
  project.Points[1][2] = back;
  EXPECT_EQ(ProjectFile::Parse(bytes), project) << bytes;
}

TEST_F(ProjectFileTest, SpeaksTheSameNumbersInEveryLocale) {
  struct Case {
    NumberLocale Locale;
    const char *Typed, *InFile;
  };
  for (const Case& each :
       {Case{Point, "1,234.50", "1,234.50"}, Case{Comma, "1.234,50", "1,234.50"},
        Case{Comma, "-1.234,5e-3", "-1,234.5e-3"}, Case{Comma, " -,5e-3\t", " -.5e-3\t"},
        Case{Comma, "1.234", "1,234"}, Case{Comma, "7", "7"},
        Case{NoBreak, "1\u202F234\u202F567,8 ", "1,234,567.8 "}, Case{Blank, "1 234 567", "1,234,567"},
        Case{Blank, " 12 ", " 12 "}, Case{Apostrophe, "1'234.5", "1,234.5"},
        Case{Ungrouped, "1234,5", "1234.5"}, Case{Ungrouped, "1,234", "1.234"}}) {
    ExpectSpelling(each.Locale, each.Typed, each.InFile, each.Typed);
  }
  for (const char* const blank : {" ", "\u00A0"}) {
    ExpectSpelling(NoBreak, "1" + std::string(blank) + "234,5", "1,234.5", "1\u202F234,5");
  }
  for (const char* const noNumber : {"", "1.5", "1,234.5", "1,2,3", "12,5 m"}) {
    ExpectSpelling(Comma, noNumber, noNumber, noNumber);
  }
  ExpectSpelling(NoBreak, "1.5", "1.5", "1.5");
  ExpectSpelling(Apostrophe, "1,234.5", "1,234.5", "1,234.5");
}

TEST_F(ProjectFileTest, TravelsBetweenLocales) {
  SetNumberLocale(Comma);
  Project project = Sample();
  project.Inputs[Flow] = "1.234,5";
  project.Inputs[Slope] = "0.001";  // typed by mistake: no number here
  const std::string bytes = ProjectFile::Format(project);
  for (const auto& [locale, flow] :
       {std::pair(Point, "1,234.5"), {NoBreak, "1\u202F234,5"}, {Ungrouped, "1234,5"}}) {
    SetNumberLocale(locale);
    EXPECT_EQ(ProjectFile::Parse(bytes).Inputs[Flow], flow);
    EXPECT_EQ(ProjectFile::Parse(bytes).Inputs[Slope], "0.001");
  }
}

/// What the fuzzer of project files has kept.
TEST_F(ProjectFileTest, TheCorpusComesBackTheSameOrDoesNotOpen) {
  int opened = 0;
  for (const auto& entry : std::filesystem::directory_iterator(CORPUS)) {
    const std::string bytes = BytesOf(entry.path());
    for (const NumberLocale& locale : ProjectRoundTrip::Locales)
      EXPECT_TRUE(ProjectRoundTrip::Holds(bytes, locale)) << entry.path();
    opened += ProjectRoundTrip::ParsedOrNothing(ProjectRoundTrip::WithChecksum(bytes)).has_value();
  }
  EXPECT_GT(opened, 3);
}

}  // namespace

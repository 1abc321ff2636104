// The manual is whole and true: its links lead somewhere, every window and control is explained, and the
// answers of its worked examples are those of the program.
#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>

#include "help/HelpStage.h"

namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;
using Texts = std::vector<std::string>;

std::string ReadText(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The groups of every match, joined by a TAB.
Texts Matches(const std::string& text, const char* pattern) {
  const std::regex expression(pattern, std::regex::icase);
  Texts found;
  for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match) {
    std::string groups = (*match)[1];
    for (std::size_t i = 2; i < match->size(); ++i) groups += "\t" + (*match)[i].str();
    found.push_back(groups);
  }
  return found;
}

/// Everything in the manual's folder, by name within it.
std::map<std::string, std::string> Files(std::initializer_list<const char*> suffixes) {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(MANUAL)) {
    for (const char* const suffix : suffixes) {
      if (entry.path().extension() == suffix)
        files[fs::relative(entry.path(), MANUAL).generic_string()] = ReadText(entry.path());
    }
  }
  return files;
}

/// What a page can be opened at.
std::set<std::string> Places(const std::string& page) {
  const Texts places = Matches(page, R"re(\s(?:id|name)="([^"]*)")re");
  return {places.begin(), places.end()};
}

/// The links that lead to no page or to no place on it.
Texts DeadLinks(const Texts& links, const std::string& from) {
  static const auto pages = Files({".html"});
  Texts dead;
  for (const std::string& link : links) {
    if (link.starts_with("http://") || link.starts_with("https://")) continue;
    const std::size_t sign = link.find('#');
    const std::string page = sign == 0 ? from : link.substr(0, sign);
    const bool there = pages.contains(page) &&
                       (sign == std::string::npos || Places(pages.at(page)).contains(link.substr(sign + 1)));
    if (!there) dead.push_back(from + ": " + link);
  }
  return dead;
}

TEST(Manual, EveryLinkAndPictureIsThere) {
  std::size_t links = 0;
  for (const auto& [name, text] : Files({".html"})) {
    const Texts leads = Matches(text, R"re(<a\s[^>]*href="([^"]*)")re");
    links += leads.size();
    EXPECT_THAT(DeadLinks(leads, name), IsEmpty());
    for (const std::string& picture : Matches(text, R"re((?:src|<link[^>]*href)="([^"]*)")re"))
      EXPECT_TRUE(fs::is_regular_file(fs::path(MANUAL) / picture)) << name << ": " << picture;
  }
  EXPECT_GT(links, 0U);
}

TEST(Manual, ContentsAndIndexLeadToPagesAndNoPageIsLeftOut) {
  std::set<std::string> unlisted;
  for (const auto& [name, text] : Files({".html"})) unlisted.insert(name);
  for (const char* const suffix : {".hhc", ".hhk"}) {
    const auto lists = Files({suffix});
    ASSERT_EQ(lists.size(), 1U) << suffix;
    const Texts leads = Matches(lists.begin()->second, R"re(<param\s+name="Local"\s+value="([^"]*)")re");
    EXPECT_FALSE(leads.empty()) << suffix;
    EXPECT_THAT(DeadLinks(leads, lists.begin()->first), IsEmpty());
    if (lists.begin()->first.ends_with(".hhc"))
      for (const std::string& lead : leads) unlisted.erase(lead.substr(0, lead.find('#')));
  }
  EXPECT_THAT(unlisted, IsEmpty());
}

TEST(Manual, TheIndexIsInTheOrderOfTheAlphabet) {
  const auto index = Files({".hhk"});
  ASSERT_EQ(index.size(), 1U);
  Texts keywords = Matches(index.begin()->second, R"re(<param\s+name="Name"\s+value="([^"]*)")re");
  EXPECT_GT(keywords.size(), 100U);
  for (std::string& keyword : keywords)
    std::transform(keyword.begin(), keyword.end(), keyword.begin(),
                   [](unsigned char c) { return std::tolower(c); });
  EXPECT_EQ(std::is_sorted_until(keywords.begin(), keywords.end()), keywords.end());
}

TEST(Manual, TheProjectNamesEveryFileAsItIsSpelled) {
  const auto projects = Files({".hhp"});
  ASSERT_EQ(projects.size(), 1U);
  const std::string& project = projects.begin()->second;
  const std::string list = project.substr(project.find("[FILES]"));
  const Texts lines = Matches(list, R"re((\S+\.(?:html|css|png))\b)re");
  std::set<std::string> files;
  for (const auto& [name, text] : Files({".html", ".css", ".png"})) files.insert(name);
  EXPECT_EQ(std::set<std::string>(lines.begin(), lines.end()), files);
}

TEST(Manual, NamesNoColours) {
  // They are the desktop's own, light or dark.
  for (const auto& [name, text] : Files({".html", ".css"}))
    EXPECT_THAT(Matches(text, R"re([^-\w]((?:bg)?color|background(?:-color)?)\s*[:=])re"), IsEmpty()) << name;
}

class ManualAndProgram : public HelpStage {
 protected:
  void OpenExample(const std::string& name) {
    Main().OpenProject(EXAMPLES "/" + name);
    ASSERT_THAT(fakes_.messageBox.Boxes, IsEmpty()) << name;
  }
};

Texts Unexplained(const Form& form) {
  const auto pages = Files({".html"});
  const auto page = pages.find(form.Name() + ".html");
  if (page == pages.end()) return {form.Name()};
  Texts missing;
  const std::set<std::string> places = Places(page->second);
  for (const Control* const control : form.Controls()) {
    if (!places.contains(control->Name())) missing.push_back(form.Name() + "." + control->Name());
  }
  return missing;
}

TEST_F(ManualAndProgram, EveryWindowHasItsPageAndEveryControlItsExplanation) {
  std::set<std::string> windows;
  const auto visit = [&windows](Form& form) {
    windows.insert(form.Name() + ".html");
    EXPECT_THAT(Unexplained(form), IsEmpty());
    // A rating window opens when its settings are accepted.
    if (form.Name().ends_with("Settings")) dynamic_cast<Button&>(*form.Find("cmdOK")).Click();
  };
  inModal_ = visit;
  visit(Main());
  OpenExample("stream-overbanks.fwd");
  for (HasClick* const command : std::initializer_list<HasClick*>{
           &Main().mnuSolveGraph, &Main().mnuSolveTable, &Main().mnuSolveSection, &Main().mnuOptionsDigits,
           &Main().mnuHelpAbout, &Main().cmdIrreg, &Main().cmdMannParams}) {
    command->Click();
  }
  std::set<std::string> pages;
  for (const auto& [name, text] : Files({".html"})) {
    if (name.starts_with("frm")) pages.insert(name);
  }
  EXPECT_EQ(windows, pages);
}

TEST_F(ManualAndProgram, TheAnswersOfTheWorkedExamplesAreThoseOfTheProgram) {
  std::map<std::string, int> answers;
  for (const auto& entry : fs::directory_iterator(EXAMPLES)) {
    if (entry.path().extension() == ".fwd") answers[entry.path().filename().string()] = 0;
  }
  for (const auto& [page, text] : Files({".html"})) {
    static const std::regex mark(
        R"re(<span class="answer" data-example="([^"]*)" data-control="([^"]*)">([^<]*)</span>)re");
    std::size_t marks = 0;
    for (std::sregex_iterator each(text.begin(), text.end(), mark), end; each != end; ++each, ++marks) {
      const std::string example = (*each)[1];
      ASSERT_TRUE(answers.contains(example)) << page << ": " << example;
      ++answers[example];
      OpenExample(example);
      const auto* const box = dynamic_cast<const TextBox*>(Main().Find((*each)[2].str()));
      ASSERT_NE(box, nullptr) << page << ": " << (*each)[2];
      EXPECT_EQ(box->Text.Get(), (*each)[3].str()) << page << ": " << example << " " << (*each)[2];
    }
    EXPECT_EQ(marks, Matches(text, R"re((class="answer"))re").size()) << page << ": a mark of another form";
  }
  for (const auto& [example, count] : answers)
    EXPECT_GT(count, 0) << "no answer of " << example << " is told";
}

}  // namespace

// The manual is true: every window and control is explained, and the answers of its worked examples are those
// of the program.
#include <gmock/gmock.h>

#include <filesystem>
#include <map>
#include <regex>
#include <set>

#include "section/frmIrreg.h"
#include "support/ProgramStage.h"
#include "support/TestFolder.h"

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

/// The pages of the manual, by name.
std::map<std::string, std::string> Pages() {
  std::map<std::string, std::string> pages;
  for (const auto& entry : fs::directory_iterator(MANUAL)) {
    if (entry.path().extension() == ".html") pages[entry.path().filename().string()] = BytesOf(entry.path());
  }
  return pages;
}

/// The matches of the expression in the text.
std::vector<std::smatch> Matches(const std::string& text, const char* expression) {
  const std::regex regex(expression);
  return {std::sregex_iterator(text.begin(), text.end(), regex), {}};
}

class ManualAndProgram : public ProgramStage {
 protected:
  void OpenExample(const std::string& name) {
    Main.OpenProject(EXAMPLES "/" + name);
    ASSERT_THAT(Fakes.messageBox.Boxes, IsEmpty()) << name;
  }
};

TEST_P(ManualAndProgram, EveryWindowHasItsPageAndEveryControlItsExplanation) {
  const auto pages = Pages();
  std::set<std::string> windows;
  const std::function<void(Form&)> visit = [&](Form& form) {
    windows.insert(form.Name() + ".html");
    ASSERT_TRUE(pages.contains(form.Name() + ".html")) << form.Name();
    const std::string& page = pages.at(form.Name() + ".html");
    for (const Control* const control : form.Controls())
      EXPECT_THAT(page, HasSubstr(" id=\"" + control->Name() + "\"")) << form.Name();
    if (auto* const editor = dynamic_cast<frmIrreg*>(&form)) {
      Screen.Then(visit);
      editor->ImportFile(SURVEY);
    }
    if (!form.Name().ends_with("Settings")) return;
    Screen.Then(visit);  // a rating window opens when its settings are accepted
    dynamic_cast<Button&>(*form.Find("cmdOK")).Click();
  };
  visit(Main);
  OpenExample("stream-overbanks.fwd");
  for (HasClick* const command : std::initializer_list<HasClick*>{
           &Main.mnuSolveGraph, &Main.mnuSolveTable, &Main.mnuSolveSection, &Main.mnuOptionsDigits,
           &Main.mnuSolveFind, &Main.mnuHelpAbout, &Main.cmdIrreg, &Main.cmdMannParams}) {
    Screen.Then(visit);
    command->Click();
  }
  Main.mnuSolveWorking.Click();
  visit(*Screen.FormsBeside().back());
  for (const auto& [name, text] : pages)
    EXPECT_TRUE(!name.starts_with("frm") || windows.contains(name)) << name;
}

TEST_P(ManualAndProgram, TheAnswersOfTheWorkedExamplesAreThoseOfTheProgram) {
  std::map<std::string, int> answers;
  for (const auto& entry : fs::directory_iterator(EXAMPLES)) {
    if (entry.path().extension() == ".fwd") answers[entry.path().filename().string()] = 0;
  }
  for (const auto& [page, text] : Pages()) {
    const auto marks = Matches(
        text, R"re(<span class="answer" data-example="([^"]*)" data-control="([^"]*)">([^<]*)</span>)re");
    EXPECT_EQ(marks.size(), Matches(text, "class=\"answer\"").size()) << page << ": a mark of another form";
    for (const std::smatch& mark : marks) {
      const std::string example = mark[1];
      ASSERT_TRUE(answers.contains(example)) << page << ": " << example;
      ++answers[example];
      OpenExample(example);
      const auto* const box = dynamic_cast<const TextBox*>(Main.Find(mark[2].str()));
      ASSERT_NE(box, nullptr) << page << ": " << mark[2];
      EXPECT_EQ(Text(*box), Spelled(mark[3].str())) << page << ": " << example << " " << mark[2];
    }
  }
  for (const auto& [example, count] : answers)
    EXPECT_GT(count, 0) << "no answer of " << example << " is told";
}

INSTANTIATE_LOCALES(ManualAndProgram);

}  // namespace
